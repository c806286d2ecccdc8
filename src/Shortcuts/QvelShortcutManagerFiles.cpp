#include "QvelShortcutManager.h"

#include "BaseHotkeyFile.h"
#include "HotkeyChangeRecord.h"
#include "HotkeyFileInput.h"
#include "HotkeySetFile.h"
#include "ICuiActionManager.h"
#include "IPathManager.h"
#include "KnownFile.h"
#include "LazyLog.h"
#include "LegacyConversion.h"
#include "LoadResult.h"
#include "PresetMetadata.h"
#include "RecordedSteps.h"
#include "WholeFile.h"
#include "XmlError.h"

#include <QBuffer>
#include <QDebug>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <optional>
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

// Logs and returns that only a part was loaded.
LoadResult partOf(const QString &text, const QString &path, const XmlError &error)
{
    const QString fault = readingFailed(text, path, error);
    QvelMessageLog::getInstance().logErrorMessage(fault);
    return {LoadResult::Extent::Part, fault};
}

void logUnwritable(const QString &path, const QString &shortcut, const ActionIdentifier &actionId)
{
    logLazily(QvelMessageLog::Error, [&] {
        return QStringLiteral("'%1' was not written: hotkey '%2' of action '%3' holds a character "
                              "that an XML file cannot hold.")
                .arg(path, shortcut, actionId.toString());
    });
}

const QString setReadingFailed =
        QStringLiteral("Loading of transform file failed!\n%2 Line: %3 Column: %4 Offset: %5");

/// Writes a hotkey set file as a whole and returns what it holds then, or nothing.
std::optional<QByteArray> writeSteps(const QString &path,
                                     const std::vector<ShortcutTransformation> &steps)
{
    WholeFile file(path);
    if (path.isEmpty() || !file.open())
        return {};
    if (const ShortcutTransformation *step = HotkeySetFile::firstUnwritable(steps)) {
        logUnwritable(path, step->shortcut(), step->actionId());
        return {};
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!HotkeySetFile::write(buffer, steps, HotkeySetFile::LockAttribute::WriteUnlocked)
        || !file.write(buffer.data()))
        return {};
    return buffer.data();
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
    saveBase(path);
}

bool QvelShortcutManager::saveBase(const QString &path) const
{
    if (path.isEmpty())
        return false;
    WholeFile file(path);
    if (!file.open())
        return false;
    const auto entries = fileEntries(baseShortcuts);
    if (const BaseHotkeyFile::Entry *entry = BaseHotkeyFile::firstUnwritable(entries)) {
        logUnwritable(path, entry->shortcuts.join(QLatin1String(", ")), entry->actionId);
        return false;
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!BaseHotkeyFile::write(buffer, entries) || !file.write(buffer.data()))
        return false;
    if (!validateShortcuts(path))
        qDebug("Generated shortcuts file doesn't conform to the schema defined in "
               "HotkeyMappingSchema.xsd.");
    return true;
}

bool QvelShortcutManager::loadShortcuts(const QString &path)
{
    return loadBase(path).isComplete();
}

LoadResult QvelShortcutManager::loadBase(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return {};
    const QString path = callersPath; // slots may change the caller's
    logLazily(QvelMessageLog::Info,
              [&] { return QStringLiteral("Loading hotkey configuration file '%1'.").arg(path); });
    HotkeyFileInput file(path);
    if (!file.validate(HotkeyFileInput::Kind::Base))
        return {LoadResult::Extent::Nothing, file.fault()};

    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    clearShortcuts();
    const BaseHotkeyFile::Content content = BaseHotkeyFile::read(file.document());
    for (const BaseHotkeyFile::Entry &entry : content.entries) {
        for (const QString &shortcut : entry.shortcuts)
            assignShortcutInternal(entry.actionId, shortcut, false, true);
    }
    if (content.error) {
        return partOf(QStringLiteral("Loading of hotkey configuration file failed!\n%2 "
                                     "Line: %3 Column: %4 Offset: %5"),
                      path, *content.error);
    }
    logLazily(QvelMessageLog::Info,
              [] { return QStringLiteral("Hotkey configuration file loaded successfully."); });
    return {LoadResult::Extent::Everything, {}};
}

// Hotkey set files

bool QvelShortcutManager::saveShortcutTransforms(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return false;
    const QString path = callersPath; // slots may change the caller's
    const ChangeScope scope(this, HotkeyChange::Kind::Upkeep);
    const RecordedSteps::Steps savedSteps = transformations->savedSteps();
    collapseTransforms(0);
    const auto contents = writeSteps(path, keepsRefused ? transformations->withRefusedSteps()
                                                        : transformations->steps());
    if (!contents) {
        transformations->reclaimUnsaved(savedSteps, modified);
        return false;
    }
    *setFile = KnownFile(path, *contents);
    transformations->rememberSaved();
    markStepsSaved();
    if (!validateShortcutsTransforms(path))
        qDebug("Generated transformation file doesn't conform to the schema defined in "
               "HotkeyTransformationSchema.xsd.");
    Q_EMIT shortcutTransformsSaved(path);
    return true;
}

bool QvelShortcutManager::loadShortcutTransforms(const QString &callersPath)
{
    if (callersPath.isEmpty())
        return false;
    const QString path = callersPath; // slots may change the caller's
    HotkeyFileInput file(path);
    return loadSet(file).isComplete();
}

LoadResult QvelShortcutManager::loadSet(HotkeyFileInput &file)
{
    const LoadResult loaded = loadTransforms(file);
    if (loaded.isReplaced()) {
        *setFile = file.known();
        Q_EMIT shortcutTransformsLoaded(file.path());
    }
    return loaded;
}

LoadResult QvelShortcutManager::loadTransforms(HotkeyFileInput &file)
{
    const QString &path = file.path();
    logLazily(QvelMessageLog::Info,
              [&] { return QStringLiteral("Loading shortcut transform file '%1'.").arg(path); });
    if (!file.validate(HotkeyFileInput::Kind::Set))
        return {LoadResult::Extent::Nothing, file.fault()};
    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    clearTransforms();
    const HotkeySetFile::Content content = HotkeySetFile::read(file.document());
    for (const ShortcutTransformation &step : content.steps) {
        if (!recordStep(step))
            continue;
        markStepsSaved();
        applyStep(step);
    }
    if (content.error)
        return partOf(setReadingFailed, path, *content.error);
    logLazily(QvelMessageLog::Info,
              [] { return QStringLiteral("Transform file loaded successfully."); });
    return {LoadResult::Extent::Everything, {}};
}

bool QvelShortcutManager::recordStep(const ShortcutTransformation &step)
{
    if (step.kind() == ShortcutTransformation::Assign && !hasRoomForShortcuts(step.actionId())) {
        transformations->refuse(step);
        return false;
    }
    transformations->append(step);
    return true;
}

void QvelShortcutManager::applyStep(const ShortcutTransformation &step)
{
    if (step.kind() == ShortcutTransformation::Assign)
        assignShortcutInternal(step.actionId(), step.shortcut(), true, false);
    else
        unassignShortcutInternal(step.actionId(), step.shortcut(), true);
    Q_EMIT shortcutTransformAdded(step);
}

bool QvelShortcutManager::readTransforms(const QString &path,
                                         std::vector<ShortcutTransformation> &steps)
{
    bool locked = false;
    QString name;
    return readTransforms(path, steps, locked, name);
}

bool QvelShortcutManager::readTransforms(const QString &path,
                                         std::vector<ShortcutTransformation> &steps, bool &locked,
                                         QString &name)
{
    HotkeyFileInput file(path);
    if (!PresetMetadata::peek(file, locked, name))
        return false;
    const HotkeySetFile::Content content = HotkeySetFile::read(file.document());
    steps = content.steps;
    if (content.error)
        partOf(setReadingFailed, path, *content.error);
    return !content.error;
}

bool QvelShortcutManager::readLegacyShortcuts(const QString &path,
                                              std::vector<ShortcutTransformation> &steps)
{
    return LegacyConversion::readAssignments(path, steps);
}

bool QvelShortcutManager::writeTransforms(const QString &path,
                                          const std::vector<ShortcutTransformation> &steps)
{
    return writeSteps(path, steps).has_value();
}

QString QvelShortcutManager::transformsFile() const
{
    return setFile->path();
}

bool QvelShortcutManager::hasTransformsFileChanged() const
{
    const KnownFile now(setFile->path());
    return !now.isMissing() && now != *setFile;
}

void QvelShortcutManager::keepOverTransformsFile()
{
    const ChangeScope scope(this, HotkeyChange::Kind::Upkeep);
    *setFile = KnownFile(setFile->path());
    transformations->markFileChanged();
    checkModifiedAndEmit();
}

std::vector<ShortcutTransformation> QvelShortcutManager::refusedTransforms() const
{
    return transformations->refusedSteps();
}

std::vector<ShortcutTransformation> QvelShortcutManager::allTransforms() const
{
    return transformations->withRefusedSteps();
}

void QvelShortcutManager::setKeepsRefusedTransforms(bool keeps)
{
    keepsRefused = keeps;
}

bool QvelShortcutManager::keepsRefusedTransforms() const
{
    return keepsRefused;
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

void QvelShortcutManager::loadShortcutConfiguration(const QString &path)
{
    loadConfiguration(path, nullptr);
}

// With the set's file, if it has been read already.
void QvelShortcutManager::loadConfiguration(const QString &callersPath, HotkeyFileInput *set)
{
    const QString path = callersPath; // slots and the path manager may change the caller's
    const ChangeScope scope(this, HotkeyChange::Kind::Reset);
    Q_EMIT shortcutConfigurationAboutToLoad(path);
    clearShortcuts();
    loadBaseFiles();
    assignDefaultAccelerators();
    *setFile = KnownFile();
    if (!path.isEmpty()) {
        std::optional<HotkeyFileInput> opened;
        HotkeyFileInput &file = set != nullptr ? *set : opened.emplace(path);
        *setFile = file.known();
        loadSet(file);
    }
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
            HotkeyFileInput set(file);
            loadTransforms(set);
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
    return !file.isEmpty() && !schemaFile.isEmpty() && HotkeyFileInput(file).validate(schemaFile);
}

bool QvelShortcutManager::validateShortcuts(const QString &path)
{
    return HotkeyFileInput(path).validate(HotkeyFileInput::Kind::Base);
}

bool QvelShortcutManager::validateShortcutsTransforms(const QString &path)
{
    return HotkeyFileInput(path).validate(HotkeyFileInput::Kind::Set);
}

bool QvelShortcutManager::validateLegacyKbdx(const QString &path)
{
    return HotkeyFileInput(path).validate(HotkeyFileInput::Kind::Legacy);
}

} // namespace CUI
