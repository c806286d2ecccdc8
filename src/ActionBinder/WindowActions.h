#pragma once

#include <QAction>
#include <QPointer>
#include <QString>

#include <vector>

class QWidget;

namespace CUI {

/// Reads the actions of a window out of its menus and toolbars.
namespace WindowActions {

struct Found {
    QPointer<QAction> action;
    /// The plain title of the menu or toolbar in which it was met first; null for none.
    QString category;
};

/// Every action of the window once, in the order in which it is met: menu bars with their menus,
/// then toolbars, then the actions of the window itself, then menus that are its children. Left out
/// are separators, actions that only open a menu, those without text and object name, and what
/// belongs to another window whose parent this one is.
std::vector<Found> collect(const QWidget &window);

/// The text without mnemonics, without a tab and the text after it, and without an ellipsis at its
/// end: "&Open..." is "Open".
QString plainText(const QString &text);

/// The words of both texts in lower camel case: "File" and "Save As" make "fileSaveAs". Never
/// empty.
QString nameFrom(const QString &category, const QString &text);

} // namespace WindowActions
} // namespace CUI
