#pragma once

#include "Document.h"
#include "ViewState.h"

#include <QImage>
#include <QWidget>

#include <array>

namespace Studio {

/// The pictures that the scene's camera takes, in four slots.
class RenderView : public QWidget
{
    Q_OBJECT

public:
    RenderView(Document *document, ViewState *view, QWidget *parent = nullptr);

    /// Takes a picture into the current slot.
    void render();
    void nextSlot(int direction);
    void toggleAlpha();
    const QImage &picture() const { return m_slots[m_slot]; }

    QSize sizeHint() const override { return {420, 260}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Document *m_document;
    ViewState *m_view;
    std::array<QImage, 4> m_slots;
    std::size_t m_slot = 0;
    bool m_onlyAlpha = false;
};

} // namespace Studio
