#include "ShortcutTransformation.h"

#include <QCoreApplication>

namespace CUI {

namespace {

QString word(const char *sourceText)
{
    return QCoreApplication::translate("CUI::QvelShortcutManager", sourceText);
}

} // namespace

QString ShortcutTransformation::toString() const
{
    const bool assigns = m_kind == Assign;
    const QString verb = assigns ? word(QT_TRANSLATE_NOOP("CUI::QvelShortcutManager", "Add"))
                                 : word(QT_TRANSLATE_NOOP("CUI::QvelShortcutManager", "Remove"));
    const QString preposition =
            assigns ? word(QT_TRANSLATE_NOOP("CUI::QvelShortcutManager", "to"))
                    : word(QT_TRANSLATE_NOOP("CUI::QvelShortcutManager", "from"));
    return QStringLiteral("%1 '%2' %3 %4.").arg(verb, m_shortcut, preposition, m_description);
}

} // namespace CUI
