#pragma once

#include <QString>

class QXmlStreamWriter;

namespace CUI {

class HotkeyKeyboard;

/// The picture of a keyboard as an element of a document.
namespace KeyboardSvg {

/// The style of every picture. It can stand in XML and HTML as it is.
QString styleSheet();

/// Writes the picture as an svg element with the style sheet @p style in it; without one the
/// document has to hold styleSheet().
void write(QXmlStreamWriter &writer, const HotkeyKeyboard &keyboard,
           const QString &style = QString());

} // namespace KeyboardSvg
} // namespace CUI
