#pragma once

#include "ActionFilter.h"
#include "ActionIdentifier.h"
#include "HotkeyKeyboard.h"
#include "UiCustomizationsExport.h"

#include <QByteArray>
#include <QPageSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class QPagedPaintDevice;

namespace CUI {

class ICuiActionManager;
class QvelShortcutManager;
class VelAction;

/// The hotkeys in effect, to print or to hand on: a list of actions by context and category.
///
/// A sheet is a copy of what the store and the installed ICuiActionManager said when it was made.
/// Actions whose context is not registered are left out, as the table of actions does. Contexts,
/// their categories and their actions are in alphabetical order, letter case ignored.
///
/// HTML, PDF and Markdown show keys by the names they have in the user's language, CSV the portable
/// texts that files hold. Names are text, whatever characters they hold, and cannot become markup.
/// Control characters become blanks, except in CSV. The same sheet gives the same bytes, except in
/// a PDF, which holds the time it was made. Nothing of a sheet needs a window.
class CUI_CORE_EXPORT HotkeySheet
{
public:
    /// One action.
    struct Entry {
        ActionIdentifier identifier; ///< its key
        QString action; ///< its display text
        QStringList hotkeys; ///< in portable form, in the order of the store
    };
    /// Actions of one context that share a category.
    struct Category {
        QString name; ///< empty for actions whose category is empty or named as the context
        std::vector<Entry> entries; ///< at least one
    };
    /// One context.
    struct Context {
        unsigned long id = 0; ///< as it is registered
        QString name; ///< its display text
        std::vector<Category> categories; ///< at least one
    };

    /// What a sheet can be written as.
    enum class Format { Html, Pdf, Markdown, Csv };

    /// A sheet without actions.
    HotkeySheet();
    /// The actions that @p filter chooses; none without a registry. @p store is not kept.
    HotkeySheet(QvelShortcutManager &store, const ActionFilter &filter);
    /// The named actions, for instance those that a view lists. Unknown ones are left out, and one
    /// that is named twice is listed once.
    HotkeySheet(QvelShortcutManager &store, const std::vector<ActionIdentifier> &actions);

    /// What is listed.
    const std::vector<Context> &contexts() const { return m_contexts; }
    /// The number of actions.
    int size() const;

    /// The heading; "Hotkeys" in the user's language unless it was set.
    QString title() const { return m_title; }
    /// Sets the heading.
    void setTitle(const QString &title) { m_title = title; }

    /// Shows @p keyboard behind the list: one picture for each combination of Control, Shift and
    /// Alt with which an action of the list has a hotkey on it, those of few modifiers first. The
    /// contexts are those of the list; layout, options and hotkeys are those that @p keyboard has
    /// now. HTML and PDF have the pictures, and what print() paints; Markdown and CSV have none.
    void setKeyboard(const HotkeyKeyboard &keyboard);
    /// The pictures, each with its modifiers; none unless setKeyboard() was called.
    const std::vector<HotkeyKeyboard> &keyboards() const { return m_keyboards; }

    /// One HTML file in UTF-8, which is XHTML, too. It needs no other file and forbids itself every
    /// connection; it can be searched on the page, follows a dark browser, and prints in columns.
    QByteArray toHtml() const;

    /// One PDF file with page numbers, bookmarks of the contexts, categories and pictures, and text
    /// that can be searched and copied. Empty, with an error in the log, when the process has no
    /// QGuiApplication, which the fonts need.
    QByteArray toPdf(const QPageSize &pageSize = defaultPageSize()) const;

    /// Tables as GitHub writes them, in UTF-8.
    QByteArray toMarkdown() const;

    /// One record for each action, as RFC 4180 has it, below a record of the columns' names: Group,
    /// Category, Action, Hotkey and the identifier. UTF-8 with a byte order mark, for spreadsheets.
    /// A field that a spreadsheet would take for a formula has an apostrophe in front.
    QByteArray toCsv() const;

    /// Writes the file @p path in the format that its suffix names, as a whole or not at all. A
    /// PDF has pages of @p pageSize. False, with an error in the log and an existing file as it
    /// was, when the suffix names none (formatOf()) or the file cannot be written.
    bool save(const QString &path, const QPageSize &pageSize = defaultPageSize()) const;

    /// Paints what toPdf() has on pages of @p device, a printer for instance, in the page layout
    /// that it has. False when it cannot be painted on.
    bool print(QPagedPaintDevice &device) const;

    /// The format that the suffix of @p path names, letter case ignored: html, htm, pdf, md,
    /// markdown or csv.
    static std::optional<Format> formatOf(const QString &path);

    /// Letter where the system's language uses inches, else A4.
    static QPageSize defaultPageSize();

private:
    void add(const std::vector<const VelAction *> &actions, const QvelShortcutManager &store);

    QString m_title;
    std::vector<Context> m_contexts;
    std::vector<HotkeyKeyboard> m_keyboards;
};

} // namespace CUI
