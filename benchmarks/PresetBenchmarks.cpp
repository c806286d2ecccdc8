#include "Configuration.h"
#include "HotkeySetFile.h"
#include "Preset.h"
#include "Rows.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <memory>
#include <vector>

namespace CUI::Bench {

namespace {

constexpr int setCount = 200;
constexpr int stepCount = 200;
// What was written more lately might still change unnoticed, so that it is not remembered.
constexpr unsigned long settlingMilliseconds = 100;

QByteArray setOfNumber(int number)
{
    std::vector<ShortcutTransformation> steps;
    for (int i = 0; i < stepCount; ++i) {
        const int action = number * stepCount + i;
        steps.emplace_back(
                i % 3 == 0 ? ShortcutTransformation::Unassign : ShortcutTransformation::Assign,
                actionAt(action), hotkeyText(i), QStringLiteral("Command %1").arg(action));
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!HotkeySetFile::write(buffer, steps, HotkeySetFile::LockAttribute::WriteUnlocked))
        qFatal("A hotkey set cannot be written.");
    return buffer.data();
}

/// Two directories with as many sets each, of which the process has not seen any.
class SetFiles
{
public:
    explicit SetFiles(const Workload &workload)
        : m_directory(workload.directory() + QStringLiteral("/sets-XXXXXX"))
    {
        static const std::vector<QByteArray> contents = [] {
            std::vector<QByteArray> all;
            all.reserve(setCount);
            for (int i = 0; i < setCount; ++i)
                all.push_back(setOfNumber(i));
            return all;
        }();
        if (!QDir().mkpath(shippedDirectory()) || !QDir().mkpath(userDirectory()))
            qFatal("A directory of hotkey sets cannot be made.");
        for (int i = 0; i < setCount; ++i)
            write(pathOfSet(i), contents[static_cast<std::size_t>(i)]);
        QThread::msleep(settlingMilliseconds);
    }

    QString shippedDirectory() const { return m_directory.filePath(QStringLiteral("shipped")); }
    QString userDirectory() const { return m_directory.filePath(QStringLiteral("user")); }

    /// In the order in which they are listed.
    QString pathOfSet(int number) const
    {
        const QString directory = number < setCount / 2 ? shippedDirectory() : userDirectory();
        return directory + QStringLiteral("/Set %1.hsx").arg(number, 3, 10, QLatin1Char('0'));
    }

private:
    static void write(const QString &path, const QByteArray &contents)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("A hotkey set cannot be written.");
    }

    QTemporaryDir m_directory;
};

/// The least that knowing whether files are sets can cost: each is checked against a schema that is
/// compiled already.
class BareValidation
{
public:
    BareValidation()
    {
        m_schema.load(QUrl::fromLocalFile(QCoreApplication::applicationDirPath()
                                          + QLatin1String("/HotkeyTransformationSchema.xsd")));
    }

    int validFilesOf(const SetFiles &files) const
    {
        int valid = 0;
        for (int i = 0; i < setCount; ++i) {
            QFile file(files.pathOfSet(i));
            if (file.open(QIODevice::ReadOnly)
                && QXmlSchemaValidator(m_schema).validate(&file,
                                                          QUrl::fromLocalFile(file.fileName())))
                ++valid;
        }
        return valid;
    }

private:
    QXmlSchema m_schema;
};

/// Lists sets, and checks what it gets.
class Listing
{
public:
    explicit Listing(Workload &workload) : m_workload(workload) { }

    /// New files each time.
    double secondsOfFirst()
    {
        m_files.reset();
        m_files = std::make_unique<SetFiles>(m_workload);
        m_workload.listSetsIn(m_files->shippedDirectory(), m_files->userDirectory());
        QList<Preset> list;
        const double seconds =
                busySecondsOf([&] { list = Preset::getPresetList(ConfigType::HotkeySet); });
        m_isRight = m_isRight && isWholeList(list);
        return seconds;
    }

    /// The mean of several: the clock is too coarse for one.
    double secondsOfLater()
    {
        constexpr int repetitions = 5;
        std::vector<QList<Preset>> lists(repetitions);
        const double seconds = busySecondsOf([&] {
            for (QList<Preset> &list : lists)
                list = Preset::getPresetList(ConfigType::HotkeySet);
        });
        for (const QList<Preset> &list : lists)
            m_isRight = m_isRight && isWholeList(list);
        return seconds / repetitions;
    }

    double secondsOfBareValidation()
    {
        int valid = 0;
        const double seconds = busySecondsOf([&] { valid = m_validation.validFilesOf(*m_files); });
        m_isRight = m_isRight && valid == setCount;
        return seconds;
    }

    QString fault() const
    {
        return m_isRight ? QString() : QStringLiteral("A list is not what the files say");
    }

private:
    bool isWholeList(const QList<Preset> &presets) const
    {
        bool isRight = presets.size() == setCount;
        for (int i = 0; isRight && i < setCount; ++i) {
            const Preset &preset = presets.at(i);
            isRight = preset.path() == m_files->pathOfSet(i) && !preset.isLocked()
                      && preset.name() == QStringLiteral("Set %1").arg(i, 3, 10, QLatin1Char('0'))
                      && preset.isDefaultHotkeySet() == (i < setCount / 2);
        }
        return isRight;
    }

    Workload &m_workload;
    BareValidation m_validation;
    std::unique_ptr<SetFiles> m_files;
    bool m_isRight = true;
};

void compareWithBareValidation(benchmark::State &state, Workload &workload)
{
    Listing listing(workload);
    listing.secondsOfFirst(); // compiles the schema
    listing.secondsOfBareValidation();
    if (isWrong(state, listing.fault()))
        return;
    compare(
            state, 1.3, [&] { return listing.secondsOfFirst(); },
            [&] { return listing.secondsOfBareValidation(); });
    isWrong(state, listing.fault());
}

void compareWithFirstListing(benchmark::State &state, Workload &workload)
{
    Listing listing(workload);
    listing.secondsOfFirst();
    listing.secondsOfLater();
    if (isWrong(state, listing.fault()))
        return;
    compare(
            state, 0.1, [&] { return listing.secondsOfLater(); },
            [&] { return listing.secondsOfFirst(); });
    isWrong(state, listing.fault());
}

} // namespace

void addPresetRows(Workload &workload)
{
    addRow("sets/first listing of 200", "a bare check of the 200 files", 8,
           [&](benchmark::State &state) { compareWithBareValidation(state, workload); });
    addRow("sets/listing again", "the first listing", 8,
           [&](benchmark::State &state) { compareWithFirstListing(state, workload); });
}

} // namespace CUI::Bench
