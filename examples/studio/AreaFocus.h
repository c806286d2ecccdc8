#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

class QWidget;

namespace Studio {

/// Knows which part of a window has the keyboard focus. A click anywhere in a part gives it the
/// focus, and when a widget with the focus disappears, the part that had it last gets it back.
class AreaFocus : public QObject
{
    Q_OBJECT

public:
    /// Watches all widgets of the application. @p window owns it.
    explicit AreaFocus(QWidget *window);

    void addArea(QWidget *area) { m_areas.emplace_back(area); }
    /// The area that has or last had the focus; the first one before that.
    QWidget *current() const;

Q_SIGNALS:
    void currentChanged(QWidget *area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *areaOf(const QWidget *widget) const;
    void setCurrent(QWidget *area);
    void followFocus(const QWidget *widget);
    void restoreFocus();

    QWidget *m_window;
    std::vector<QPointer<QWidget>> m_areas;
    QPointer<QWidget> m_current;
};

} // namespace Studio
