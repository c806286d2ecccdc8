#pragma once

#include "HotkeyKeyboard.h"
#include "UiCustomizationsExport.h"

#include <QLineF>
#include <QPainterPath>
#include <QVector>

namespace CUI {

/// Takes the parts of the picture of a keyboard, in the coordinates of HotkeyKeyboard::size().
class KeyboardCanvas
{
public:
    KeyboardCanvas() = default;
    virtual ~KeyboardCanvas() = default;
    Q_DISABLE_COPY(KeyboardCanvas)

    enum class TextColor { Strong, Dim };

    /// What is drawn until endKey() belongs to this key.
    virtual void beginKey(const HotkeyKeyboard::Key &key) = 0;
    virtual void endKey() = 0;
    virtual void drawFace(const QVector<QRectF> &parts, HotkeyKeyboard::State state,
                          bool isHeld) = 0;
    virtual void drawSymbol(const QPainterPath &symbol) = 0;
    /// One line from the left, centred vertically, smaller than @p size where it would not fit.
    virtual void drawText(const QRectF &box, double size, TextColor color, const QString &text) = 0;
};

/// How the picture of a keyboard is put together.
namespace KeyboardDrawing {

void draw(const HotkeyKeyboard &keyboard, KeyboardCanvas &canvas);

/// The outline of a cap that consists of these parts.
CUI_CORE_EXPORT QPainterPath outlineOf(const QVector<QRectF> &parts);

/// The lines that hatch a cap in that state.
QVector<QLineF> hatching(const QVector<QRectF> &parts, HotkeyKeyboard::State state);

} // namespace KeyboardDrawing
} // namespace CUI
