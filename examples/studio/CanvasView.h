#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>

namespace Studio {

/// A plane that is moved with the middle button and enlarged with the wheel.
class CanvasView : public QWidget
{
    Q_OBJECT

public:
    explicit CanvasView(QWidget *parent = nullptr);

    void zoom(double factor);
    /// Shows that part of the plane, as large as it fits.
    void frame(const QRectF &area);

    QPointF toScreen(QPointF point) const;
    QPointF toPlane(QPointF place) const;
    double scale() const { return m_scale; }

protected:
    /// Frames what there is when the view is first shown.
    virtual QRectF everything() const = 0;
    /// How much further across is shown than up; 1 keeps circles round.
    virtual double stretch() const { return 1; }

    void drawBackground(QPainter &painter, double cell) const;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointF m_centre;
    double m_scale = 1; ///< pixels for a unit up
    bool m_isFramed = false;
    QPoint m_last;
};

} // namespace Studio
