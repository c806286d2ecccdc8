#include "WindowActions.h"

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

namespace CUI::WindowActions {

namespace {

class Walk
{
public:
    explicit Walk(const QWidget &window) : m_window(window) { }

    std::vector<Found> run()
    {
        for (const QMenuBar *bar : m_window.findChildren<QMenuBar *>()) {
            if (belongsToWindow(bar))
                visit(bar->actions(), QString());
        }
        for (const QToolBar *bar : m_window.findChildren<QToolBar *>()) {
            if (belongsToWindow(bar))
                visit(bar->actions(), plainText(bar->windowTitle()));
        }
        visit(m_window.actions(), QString());
        // Deeper menus may be made by Qt itself, such as those of MDI windows.
        for (const QMenu *menu :
             m_window.findChildren<QMenu *>(QString(), Qt::FindDirectChildrenOnly))
            visitMenu(menu);
        return m_found;
    }

private:
    bool belongsToWindow(const QWidget *widget) const
    {
        for (; widget != nullptr && widget != &m_window; widget = widget->parentWidget()) {
            const bool floats = qobject_cast<const QDockWidget *>(widget) != nullptr
                                || qobject_cast<const QToolBar *>(widget) != nullptr;
            if (widget->isWindow() && !floats)
                return false;
        }
        return true;
    }

    void visitMenu(const QMenu *menu)
    {
        if (m_menus.contains(menu))
            return;
        m_menus.insert(menu);
        visit(menu->actions(), plainText(menu->title()));
    }

    void visit(const QList<QAction *> &actions, const QString &category)
    {
        for (QAction *action : actions) {
            if (action->isSeparator())
                continue;
            if (const QMenu *menu = action->menu()) {
                visitMenu(menu);
            } else if (const QToolButton *button = buttonOf(action)) {
                visit(button->actions(), category);
            } else if (!m_actions.contains(action) && hasName(action)) {
                m_actions.insert(action);
                m_found.push_back({action, category});
            }
        }
    }

    // A button that was added to a toolbar as a widget has its own action or menu.
    static const QToolButton *buttonOf(const QAction *action)
    {
        const auto *widgetAction = qobject_cast<const QWidgetAction *>(action);
        return widgetAction == nullptr
                       ? nullptr
                       : qobject_cast<const QToolButton *>(widgetAction->defaultWidget());
    }

    static bool hasName(const QAction *action)
    {
        return !action->text().isEmpty() || !action->objectName().isEmpty();
    }

    const QWidget &m_window;
    QSet<const QMenu *> m_menus;
    QSet<const QAction *> m_actions;
    std::vector<Found> m_found;
};

} // namespace

std::vector<Found> collect(const QWidget &window)
{
    return Walk(window).run();
}

QString plainText(const QString &text)
{
    // A text without Latin letters has its mnemonic in parentheses at the end.
    static const QRegularExpression appended(QStringLiteral("\\s*\\(&[^&]\\)"));
    static const QRegularExpression mnemonic(QStringLiteral("&(.|$)"));
    static const QRegularExpression ellipsis(QStringLiteral("\\s*(\\.\\.\\.|\u2026)\\s*$"));

    QString plain = text.section(QLatin1Char('\t'), 0, 0);
    plain.remove(appended);
    plain.replace(mnemonic, QStringLiteral("\\1"));
    plain.remove(ellipsis);
    return plain.trimmed();
}

QString nameFrom(const QString &category, const QString &text)
{
    static const QRegularExpression apostrophe(QStringLiteral("['\u2019]"));
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{M}\\p{N}]+"));

    QString words = category + QLatin1Char(' ') + text;
    words.remove(apostrophe);
    QString name;
    for (const QString &word : words.split(between, Qt::SkipEmptyParts)) {
        const QString lower = word.toLower();
        name += name.isEmpty() ? lower : lower.left(1).toUpper() + lower.mid(1);
    }
    return name.isEmpty() ? QStringLiteral("action") : name;
}

} // namespace CUI::WindowActions
