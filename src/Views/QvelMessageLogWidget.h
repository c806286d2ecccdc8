#pragma once

#include "UiCustomizationsExport.h"

#include <QString>
#include <QTextEdit>

namespace CUI {

/// The view in which the user reads the lines of the QvelMessageLog: read-only text with a context
/// menu, and a key that empties it.
///
/// It does not connect itself. Whoever places it connects QvelMessageLog::messageLogged to
/// append(); lines logged before that are not shown. The text grows until the user clears it, and
/// what is cleared is gone. User-interface thread only.
class CUI_EXPORT QvelMessageLogWidget : public QTextEdit
{
    Q_OBJECT

public:
    /// An empty view; @p parent owns it.
    explicit QvelMessageLogWidget(QWidget *parent = nullptr);
    ~QvelMessageLogWidget() override;

    /// Ctrl+D, with whatever other modifiers, empties the view while it has the focus, even where
    /// the application has given these keys to a shortcut of its own: that does not fire.
    bool event(QEvent *event) override;

public Q_SLOTS:
    /// Adds @p line as one paragraph of plain text; line breaks in it do not end it. Takes the
    /// place of QTextEdit::append(), which would read markup in lines that quote a file. A view
    /// that is scrolled to its end stays there. Emits textChanged() once.
    void append(const QString &line);

protected:
    /// Runs a menu of "Copy" (enabled with a selection), "Select All" and "Clear Log" (both enabled
    /// unless the view is empty), and returns when it is closed.
    void contextMenuEvent(QContextMenuEvent *event) override;
};

} // namespace CUI
