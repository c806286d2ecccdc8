#include "QvelShortcutManager.h"

#include "BaseHotkeyFile.h"
#include "FileValidation.h"
#include "HotkeySetFile.h"
#include "ICuiActionManager.h"
#include "IPathManager.h"
#include "LazyLog.h"
#include "LegacyConversion.h"
#include "PresetMetadata.h"
#include "RecordedSteps.h"
#include "SaveFileCommit.h"
#include "XmlError.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace CUI {

namespace {

bool hasPlaceholder(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?[0-9]{1,2}"));
    return text.contains(placeholder);
}

// Existing log readers know these lines as they are: the template starts at %2, so that each value
// lands one place later than its label says, and the last one finds none.
QString readingFailed(QString text, const QString &path, const XmlError &error)
{
    for (const QString &value : {path, error.text, QString::number(error.line),
                                 QString::number(error.column), QString::number(error.offset)}) {
        if (hasPlaceholder(text))
            text = text.arg(value);
    }
    return text;
}

void logReadingFailed(const QString &text, const QString &path, const XmlError &error)
{
    logLazily(QvelMessageLog::Error, [&] { return readingFailed(text, path, error); });
}

void logUnwritable(const QString &path, const QString &shortcut, const ActionIdentifier &actionId)
{
    logLazily(QvelMessageLog::Error, [&] {
        return QStringLiteral("'%1' was not written: hotkey '%2' of action '%3' holds a character "
                              "that an XML file cannot hold.")
                .arg(path, shortcut, actionId.toString());
    });
}

// The base hotkeys as the file holds them: ordered, so that two versions compare line by line.
std::vector<BaseHotkeyFile::Entry> fileEntries(
        const std::unordered_map<ActionIdentifier, QShortcutsList> &shortcuts)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    std::vector<BaseHotkeyFile::Entry> entries;
    entries.reserve(shortcuts.size());
    for (const auto &[actionId, list] : shortcuts) {
        const VelAction *action = registry != nullptr ? registry->getAction(actionId) : nullptr;
        // An action without a name still has its description written, as an empty text.
        const QString description =
                action != nullptr ? QLatin1String("") + action->name() : QString();
        entries.push_back({actionId, list, description});
    }
    std::sort(entries.begin(), entries.end(),
              [](const BaseHotkeyFile::Entry &a, const BaseHotkeyFile::Entry &b) {
                  return a.actionId < b.actionId;
              });
    return entries;
}

} // namespace

// Base hotkey files

void QvelShortcutManager::saveShortcuts(const QString &path) const
{
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return;
    const auto entries = fileEntries(baseShortcuts);
    if (const BaseHotkeyFile::Entry *entry = BaseHotkeyFile::firstUnwritable(entries)) {
        logUnwritable(path, entry->shortcuts.join(QLatin1String(", ")), entry->actionId);
        return;
    }
    if (!BaseHotkeyFile::write(file, entries) || !commitWhole(file))
        return;
    if (!validateShortcuts(path))
        qDebug("Generated shortcuts file doesn't conform to the schema defined in "
               "HotkeyMappingSchema.xsd.");
}

bool QvelShortcutManager::loadShortcuts(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return false;
    const QString path = callersPath; // slots may change the caller's
    logLazily(QvelMessageLog::Info,
              [&] { return QStringLiteral("Loading hotkey configuration file '%1'.").arg(path); });
    if (!validateShortcuts(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;

    clearShortcuts();
    const BaseHotkeyFile::Content content = BaseHotkeyFile::read(file);
    for (const BaseHotkeyFile::Entry &entry : content.entries) {
        for (const QString &shortcut : entry.shortcuts)
            assignShortcutInternal(entry.actionId, shortcut, false, true);
    }
    if (content.error) {
        logReadingFailed(QStringLiteral("Loading of hotkey configuration file failed!\n%2 "
                                        "Line: %3 Column: %4 Offset: %5"),
                         path, *content.error);
        return false;
    }
    logLazily(QvelMessageLog::Info,
              [] { return QStringLiteral("Hotkey configuration file loaded successfully."); });
    return true;
}

// Hotkey set files

bool QvelShortcutManager::saveShortcutTransforms(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return false;
    const QString path = callersPath; // slots may change the caller's
    const RecordedSteps::Steps savedSteps = transformations->savedSteps();
    collapseTransforms(0);
    if (!writeTransforms(path)) {
        transformations->reclaimUnsaved(savedSteps, modified);
        return false;
    }
    markStepsSaved();
    if (!validateShortcutsTransforms(path))
        qDebug("Generated transformation file doesn't conform to the schema defined in "
               "HotkeyTransformationSchema.xsd.");
    return true;
}

bool QvelShortcutManager::writeTransforms(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    const std::vector<ShortcutTransformation> &steps = currentTransformations();
    if (const ShortcutTransformation *step = HotkeySetFile::firstUnwritable(steps)) {
        logUnwritable(path, step->shortcut(), step->actionId());
        return false;
    }
    return HotkeySetFile::write(file, steps, HotkeySetFile::LockAttribute::WriteUnlocked)
           && commitWhole(file);
}

bool QvelShortcutManager::loadShortcutTransforms(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return false;
    const QString path = callersPath; // slots may change the caller's
    logLazily(QvelMessageLog::Info,
              [&] { return QStringLiteral("Loading shortcut transform file '%1'.").arg(path); });
    if (!validateShortcutsTransforms(path))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;

    clearTransforms();
    const HotkeySetFile::Content content = HotkeySetFile::read(file);
    for (const ShortcutTransformation &step : content.steps)
        applyLoadedStep(step);
    if (content.error) {
        logReadingFailed(QStringLiteral("Loading of transform file failed!\n%2 Line: %3 "
                                        "Column: %4 Offset: %5"),
                         path, *content.error);
        return false;
    }
    logLazily(QvelMessageLog::Info,
              [] { return QStringLiteral("Transform file loaded successfully."); });
    return true;
}

void QvelShortcutManager::applyLoadedStep(const ShortcutTransformation &step)
{
    const bool assigns = step.kind() == ShortcutTransformation::Assign;
    const ActionIdentifier actionId = step.actionId();
    if (assigns && !hasRoomForShortcuts(actionId))
        return;
    transformations->append(step);
    markStepsSaved();
    if (assigns)
        assignShortcutInternal(actionId, step.shortcut(), true, false);
    else
        unassignShortcutInternal(actionId, step.shortcut(), true);
    Q_EMIT shortcutTransformAdded(step);
}

bool QvelShortcutManager::peekPresetMetadata(const QString &path, bool &locked, QString &name)
{
    return PresetMetadata::peek(path, locked, name);
}

bool QvelShortcutManager::convertLegacyShortcuts(const QString &in, const QString &out)
{
    return LegacyConversion::convert(in, out);
}

// The whole configuration

void QvelShortcutManager::loadShortcutConfiguration(const QString &callersPath)
{
    const QString path = callersPath; // slots and the path manager may change the caller's
    Q_EMIT shortcutConfigurationAboutToLoad(path);
    clearShortcuts();
    loadBaseFiles();
    assignDefaultAccelerators();
    if (!path.isEmpty())
        loadShortcutTransforms(path);
    if (IPathManager *paths = IPathManager::get())
        paths->setCurrentConfigurationFile(ConfigType::HotkeySet, path);
    Q_EMIT shortcutConfigurationLoaded(path);
}

void QvelShortcutManager::loadCurrentShortcutConfiguration()
{
    const IPathManager *paths = IPathManager::get();
    loadShortcutConfiguration(paths != nullptr
                                      ? paths->getCurrentConfigurationFile(ConfigType::HotkeySet)
                                      : QString());
}

void QvelShortcutManager::loadBaseFiles()
{
    const IPathManager *paths = IPathManager::get();
    if (paths == nullptr)
        return;
    const QStringList files = paths->getBaseHotkeyFiles();
    for (const QString &file : files) {
        const QString suffix = QFileInfo(file).suffix();
        if (suffix.compare(QLatin1String("hsxb"), Qt::CaseInsensitive) == 0) {
            loadShortcuts(file);
        } else if (suffix.compare(QLatin1String("hsx"), Qt::CaseInsensitive) == 0) {
            loadShortcutTransforms(file);
            applyTransforms();
        }
    }
}

void QvelShortcutManager::assignDefaultAccelerators()
{
    ICuiActionManager *registry = ICuiActionManager::get();
    if (registry == nullptr)
        return;
    std::vector<std::pair<ActionIdentifier, QString>> accelerators;
    registry->getDefaultAccelerators(this, accelerators);
    for (const auto &[actionId, shortcut] : accelerators)
        assignShortcutInternal(actionId, shortcut, false, true);
}

// Validation

bool QvelShortcutManager::validateXml(const QString &file, const QString &schemaFile)
{
    return FileValidation::validateXml(file, schemaFile);
}

bool QvelShortcutManager::validateShortcuts(const QString &path)
{
    return FileValidation::validateShortcuts(path);
}

bool QvelShortcutManager::validateShortcutsTransforms(const QString &path)
{
    return FileValidation::validateShortcutsTransforms(path);
}

bool QvelShortcutManager::validateLegacyKbdx(const QString &path)
{
    return FileValidation::validateLegacyKbdx(path);
}

} // namespace CUI
