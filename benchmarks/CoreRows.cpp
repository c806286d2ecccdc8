#include "HotkeyAudit.h"
#include "HotkeySheet.h"
#include "Preset.h"
#include "RecordedSteps.h"
#include "Rows.h"
#include "Stage.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>

#include <algorithm>
#include <memory>

namespace CUI::Bench {

namespace {

/// The least that taking in files safely can cost: each is checked against a schema that is
/// compiled already, and read.
class BareReading
{
public:
    explicit BareReading(const char *schema)
    {
        m_schema.load(QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QLatin1Char('/')
                                          + QLatin1String(schema)));
    }

    bool isValid(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly)
               && QXmlSchemaValidator(m_schema).validate(&file, QUrl::fromLocalFile(path));
    }

    /// The number of elements, or -1 for a file that is not valid.
    int elementsOf(const QString &path) const
    {
        QFile file(path);
        if (!isValid(path) || !file.open(QIODevice::ReadOnly))
            return -1;
        int elements = 0;
        QXmlStreamReader reader(&file);
        while (!reader.atEnd())
            elements += reader.readNext() == QXmlStreamReader::StartElement ? 1 : 0;
        return reader.hasError() ? -1 : elements;
    }

private:
    QXmlSchema m_schema;
};

double secondsOfLoading(const Configuration &configuration)
{
    QvelShortcutManager store;
    return secondsOf([&] { configuration.load(store); });
}

constexpr int setCount = 200;

/// A directory of sets of which the process has not seen any.
struct SetFiles {
    SetFiles()
    {
        constexpr int stepCount = 200;
        for (int set = 0; set < setCount; ++set)
            paths << writeSet(directory.path(), set * stepCount, (set + 1) * stepCount);
        // What was written more lately might still change unnoticed, so that it is not remembered.
        QThread::msleep(100);
        Stage::instance().host().paths()->userPresets = directory.path();
    }

    /// The seconds of listing them once, or no number when the list is wrong.
    double secondsOfListing() const
    {
        QList<Preset> presets;
        const double seconds =
                secondsOf([&] { presets = Preset::getPresetList(ConfigType::HotkeySet); });
        const bool isRight = std::equal(
                presets.begin(), presets.end(), paths.begin(), paths.end(),
                [](const Preset &preset, const QString &path) { return preset.path() == path; });
        return isRight ? seconds : qQNaN();
    }

    QTemporaryDir directory;
    QStringList paths; // in the order in which they are listed
};

/// The seconds of listing files that are new each time. They stay in @p files.
double secondsOfFirstListing(std::unique_ptr<SetFiles> &files)
{
    files.reset();
    files = std::make_unique<SetFiles>();
    return files->secondsOfListing();
}

/// Two actions of a context take hotkeys from each other and give them back, many times. Returns
/// the mean seconds of an edit, or a negative number when a hotkey did not change its holder.
double secondsOfEdit(QvelShortcutManager &store)
{
    constexpr int pairs = 25;
    bool isRight = true;
    double seconds = 0.0;
    const auto take = [&](int action, const QString &hotkey) {
        seconds += secondsOf([&] { store.assignShortcut(actionAt(action), hotkey, {}); });
        isRight = isRight
                  && store.getActionIdFromShortcut(hotkey, contextOf(action)) == actionAt(action);
    };
    for (int a = 0; a < usualCount; a += usualCount / pairs) {
        const int b = a + contextCount;
        take(b, hotkeyOf(a));
        take(a, hotkeyOf(b));
        take(a, hotkeyOf(a));
        take(b, hotkeyOf(b));
    }
    return isRight ? seconds / (4 * pairs) : -1.0;
}

/// Steps of which nine in ten are cancelled by others.
RecordedSteps::Steps editedSteps(int count)
{
    RecordedSteps::Steps steps;
    for (int i = 0; i < count; ++i) {
        const int subject = i * 7919 % (count / 2);
        const bool isRepeated = subject % 5 == 0;
        steps.emplace_back(i < count / 2 || isRepeated ? ShortcutTransformation::Assign
                                                       : ShortcutTransformation::Unassign,
                           actionAt(subject), unusedHotkey(subject), QString());
    }
    return steps;
}

} // namespace

Trial loadingBesideBareReading()
{
    const Configuration files(usualCount);
    const auto base = std::make_shared<BareReading>("HotkeyMappingSchema.xsd");
    const auto set = std::make_shared<BareReading>("HotkeyTransformationSchema.xsd");
    const auto read = [files, base, set] {
        return base->elementsOf(files.basePath) + set->elementsOf(files.setPath);
    };
    const QString fault = faultUnless(read() == 2 * (usualCount + 1), "the bare reading failed");
    return {fault + files.fault(), [files] { return secondsOfLoading(files); },
            [read] { return secondsOf(read); }};
}

Trial loadingOf100k()
{
    Stage::instance().largeModel();
    const Configuration large(largeCount);
    const Configuration usual(usualCount);
    return {large.fault() + usual.fault(), [large] { return secondsOfLoading(large); },
            [usual] { return secondsOfLoading(usual); }};
}

Trial saving()
{
    const auto store = std::make_shared<QvelShortcutManager>();
    Configuration(usualCount).load(*store);
    const QString path = Stage::instance().host().path(QStringLiteral("saved.hsx"));
    const auto bare = std::make_shared<BareReading>("HotkeyTransformationSchema.xsd");
    const auto save = [store, path] { return store->saveShortcutTransforms(path); };
    const auto read = [bare, path] { return bare->elementsOf(path); };
    return {faultUnless(save() && read() == usualCount + 1, "a step is missing"),
            [save] { return secondsOf(save); }, [read] { return secondsOf(read); }};
}

Trial firstListingOfSets()
{
    const auto files = std::make_shared<std::unique_ptr<SetFiles>>();
    const auto bare = std::make_shared<BareReading>("HotkeyTransformationSchema.xsd");
    const auto list = [files] { return secondsOfFirstListing(*files); };
    const auto check = [files, bare] {
        const QStringList &paths = (*files)->paths;
        return std::all_of(paths.begin(), paths.end(),
                           [&bare](const QString &path) { return bare->isValid(path); });
    };
    return {faultUnless(list() > 0.0 && check(), "a set is missing or not valid"), list,
            [check] { return secondsOf(check); }};
}

Trial laterListingOfSets()
{
    const auto files = std::make_shared<std::unique_ptr<SetFiles>>();
    const auto listFirst = [files] { return secondsOfFirstListing(*files); };
    const auto listAgain = [files] { return (*files)->secondsOfListing(); };
    return {faultUnless(listFirst() > 0.0 && listAgain() > 0.0, "a set is missing"), listAgain,
            listFirst};
}

Trial edit()
{
    const auto store = std::make_shared<QvelShortcutManager>();
    store->loadShortcuts(Configuration(usualCount).basePath);
    for (int action = 0; action < 1000; ++action)
        store->assignShortcut(actionAt(action), unusedHotkey(action), {});
    return {faultUnless(secondsOfEdit(*store) > 0.0, "a hotkey did not change its holder"),
            [store] { return secondsOfEdit(*store); }, [] { return 1e-4; }};
}

Trial cancellingOf10k()
{
    const RecordedSteps::Steps steps = editedSteps(10000);
    RecordedSteps::Steps cancelled = steps;
    RecordedSteps::cancel(cancelled, 0);
    const auto seconds = [steps] {
        RecordedSteps::Steps copy = steps;
        return secondsOf([&copy] { RecordedSteps::cancel(copy, 0); });
    };
    return {faultUnless(cancelled.size() == 1000, "the wrong steps are left"), seconds,
            [] { return 5e-3; }};
}

Trial audit()
{
    const auto find = [] {
        return HotkeyAudit(Stage::instance().store(), Stage::auditOptions()).findings().size();
    };
    return besideFrame(
            faultUnless(find() > 0, "nothing is found"), [] {}, find);
}

Trial sheet()
{
    const auto write = [] {
        return HotkeySheet(Stage::instance().store(), ActionFilter()).toHtml();
    };
    const QByteArray page = write();
    return {faultUnless(page.contains(nameOf(0).toUtf8())
                                && page.contains(nameOf(usualCount - 1).toUtf8()),
                        "an action is missing"),
            [write] { return secondsOf(write); }, [] { return 0.1; }};
}

} // namespace CUI::Bench
