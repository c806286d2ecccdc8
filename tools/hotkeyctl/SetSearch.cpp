#include "SetSearch.h"

#include "Session.h"
#include "TextOutput.h"

#include <UiCustomizations/Preset.h>

#include <QFileInfo>

namespace HotkeyCtl {

namespace {

using CUI::Preset;

using NameOf = QString (*)(const Preset &preset);

QString listedName(const Preset &preset)
{
    return preset.name();
}

QString printedName(const Preset &preset)
{
    return printable(preset.name());
}

/// The name without a translation, so that a script works in every language.
QString nameInFile(const Preset &preset)
{
    bool isLocked = false;
    QString name;
    CUI::QvelShortcutManager::peekPresetMetadata(preset.path(), isLocked, name);
    return name;
}

QStringList pathsOfSetsNamed(const QString &text, const QList<Preset> &presets)
{
    QStringList paths;
    for (const NameOf nameOf : {listedName, printedName, nameInFile}) {
        for (const Preset &preset : presets) {
            if (nameOf(preset) == text)
                paths << preset.path();
        }
        if (!paths.isEmpty())
            break;
    }
    return paths;
}

QString whatThereIs(const QList<Preset> &presets)
{
    if (presets.isEmpty())
        return QStringLiteral("there are no sets");
    QStringList names;
    for (const Preset &preset : presets)
        names << preset.name();
    return QStringLiteral("the sets are: %1").arg(names.join(QLatin1String(", ")));
}

} // namespace

std::optional<QString> findSet(const Session &session, const QString &text)
{
    const QFileInfo file(text);
    if (file.isFile())
        return text;
    const QList<Preset> presets = Preset::getPresetList(CUI::ConfigType::HotkeySet);
    const QStringList paths = pathsOfSetsNamed(text, presets);
    if (paths.size() == 1)
        return paths.constFirst();
    if (paths.size() > 1) {
        session.problem(QStringLiteral("several hotkey sets are named '%1'; their paths are: %2")
                                .arg(text, paths.join(QLatin1String(", "))));
    } else if (file.exists()) {
        session.problem(QStringLiteral("%1: is not a regular file").arg(text));
    } else if (file.isSymLink()) {
        session.problem(QStringLiteral("%1: is a link that leads nowhere").arg(text));
    } else {
        session.problem(QStringLiteral("there is neither a file nor a hotkey set '%1'; %2")
                                .arg(text, whatThereIs(presets)));
    }
    return {};
}

} // namespace HotkeyCtl
