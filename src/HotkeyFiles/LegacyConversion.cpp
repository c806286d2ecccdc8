#include "LegacyConversion.h"

#include "HotkeyFileInput.h"
#include "HotkeySetFile.h"
#include "IPathManager.h"
#include "LazyLog.h"
#include "LegacyKeyboardFile.h"
#include "RecordedSteps.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QDir>

#include <algorithm>
#include <utility>

namespace CUI::LegacyConversion {

namespace {

using Steps = std::vector<ShortcutTransformation>;

bool fail(const QString &text, const QString &path)
{
    logLazily(QvelMessageLog::Error, [&] { return text.arg(path); });
    return false;
}

QString legacyDefaultFile()
{
    const IPathManager *paths = IPathManager::get();
    const QString directory = paths != nullptr ? paths->getLegacyHotkeyDirectory() : QString();
    return directory + QDir::separator() + QLatin1String("LegacyDefaultUI-2019.kbdx");
}

// Appends a step of that kind for each accelerator of the file.
bool readLegacyShortcuts(const QString &path, Steps &records, ShortcutTransformation::Kind kind)
{
    HotkeyFileInput file(path);
    if (!file.isOpen())
        return fail(QStringLiteral("Could not open the legacy hotkey configuration '%1'."), path);
    if (!file.validate(HotkeyFileInput::Kind::Legacy))
        return fail(QStringLiteral("'%1' is not a valid kbdx file."), path);
    const auto steps = LegacyKeyboardFile::read(file.document(), kind);
    if (!steps)
        return fail(QStringLiteral("Could not parse legacy hotkey configuration '%1'."), path);
    records.insert(records.end(), steps->begin(), steps->end());
    return true;
}

// A character code can be that of a control character. A set without it is worth more to the user
// than no set at all.
void dropUnwritable(Steps &steps)
{
    const auto isUnwritable = [](const ShortcutTransformation &step) {
        if (HotkeySetFile::isWritable(step))
            return false;
        logLazily(QvelMessageLog::Warning, [&step] {
            return QStringLiteral("A hotkey of '%1' is left out: it holds a character that an XML "
                                  "file cannot hold.")
                    .arg(step.actionId().toString());
        });
        return true;
    };
    steps.erase(std::remove_if(steps.begin(), steps.end(), isUnwritable), steps.end());
}

} // namespace

bool convert(const QString &in, const QString &out)
{
    if (in.isEmpty() || out.isEmpty())
        return false;
    Steps steps;
    if (!readLegacyShortcuts(in, steps, ShortcutTransformation::Assign)
        || !readLegacyShortcuts(legacyDefaultFile(), steps, ShortcutTransformation::Unassign))
        return false;
    // What both files have cancels out; the user's additions and removals remain.
    RecordedSteps::cancel(steps, 0);
    dropUnwritable(steps);

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    WholeFile file(out);
    if (!HotkeySetFile::write(buffer, steps, HotkeySetFile::LockAttribute::Omit) || !file.open()
        || !file.write(buffer.data()))
        return fail(QStringLiteral("Could not open '%1' to store the results of conversion."), out);
    return HotkeyFileInput(out).validate(HotkeyFileInput::Kind::Set);
}

bool readAssignments(const QString &path, Steps &steps)
{
    HotkeyFileInput file(path);
    if (!file.validate(HotkeyFileInput::Kind::Legacy))
        return false;
    auto assignments = LegacyKeyboardFile::read(file.document(), ShortcutTransformation::Assign);
    if (!assignments)
        return false;
    RecordedSteps::cancel(*assignments, 0);
    dropUnwritable(*assignments);
    steps = std::move(*assignments);
    return true;
}

} // namespace CUI::LegacyConversion
