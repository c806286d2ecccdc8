#include "Configuration.h"
#include "QvelShortcutManager.h"
#include "Rows.h"
#include "SchemaCheck.h"

#include <QCoreApplication>
#include <QFile>

namespace CUI::Bench {

namespace {

constexpr int fileCount = 50;
constexpr int schemaCount = 2;

/// Copies of the two schemas, so that nothing has compiled them yet.
class SchemaCopies
{
public:
    explicit SchemaCopies(const Workload &workload) : m_directory(workload.directory())
    {
        copy(QStringLiteral("HotkeyMappingSchema.xsd"), baseSchema());
        copy(QStringLiteral("HotkeyTransformationSchema.xsd"), setSchema());
    }

    ~SchemaCopies()
    {
        QFile::remove(baseSchema());
        QFile::remove(setSchema());
    }

    SchemaCopies(const SchemaCopies &) = delete;
    SchemaCopies &operator=(const SchemaCopies &) = delete;

    QString baseSchema() const { return m_directory + QLatin1String("/base.xsd"); }
    QString setSchema() const { return m_directory + QLatin1String("/set.xsd"); }

private:
    // A comment of its own makes each copy differ from that of an earlier run.
    static void copy(const QString &name, const QString &target)
    {
        static int copies = 0;
        QFile source(QCoreApplication::applicationDirPath() + QLatin1Char('/') + name);
        QFile file(target);
        if (!source.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)
            || file.write(source.readAll() + "<!-- " + QByteArray::number(++copies) + " -->") < 0)
            qFatal("A schema cannot be copied.");
    }

    QString m_directory;
};

bool checkFiles(const Configuration &configuration, const SchemaCopies &schemas)
{
    bool areValid = true;
    for (int i = 0; i < fileCount / 2; ++i) {
        areValid = QvelShortcutManager::validateXml(configuration.basePath, schemas.baseSchema())
                   && areValid;
        areValid = QvelShortcutManager::validateXml(configuration.setPath, schemas.setSchema())
                   && areValid;
    }
    return areValid;
}

/// Counts how often schemas are compiled while @p run lasts, which returns whether all went well.
template <typename Run>
void countCompilations(benchmark::State &state, int expected, Run run)
{
    int compilations = 0;
    for (auto round : state) {
        Q_UNUSED(round)
        const int before = SchemaCheck::compilationCount();
        bool done = false;
        state.SetIterationTime(secondsOf([&] { done = run(); }));
        if (isWrong(state, done ? QString() : QStringLiteral("A file was refused")))
            return;
        compilations = SchemaCheck::compilationCount() - before;
    }
    setCount(state, compilations, expected);
}

void countAtFirstUse(benchmark::State &state, Workload &workload)
{
    const Configuration &configuration = workload.configuration(1000, Steps::Displacing);
    const SchemaCopies schemas(workload);
    countCompilations(state, schemaCount, [&] { return checkFiles(configuration, schemas); });
}

void countAfterChange(benchmark::State &state, Workload &workload)
{
    const Configuration &configuration = workload.configuration(1000, Steps::Displacing);
    const SchemaCopies schemas(workload);
    const bool areValid = checkFiles(configuration, schemas);
    QFile schema(schemas.setSchema());
    const bool isChanged = schema.open(QIODevice::Append) && schema.write("<!-- changed -->\n") > 0;
    schema.close();
    if (isWrong(state, areValid && isChanged ? QString() : QStringLiteral("No change was made")))
        return;
    countCompilations(state, 1, [&] { return checkFiles(configuration, schemas); });
}

void countInLaterLoads(benchmark::State &state, Workload &workload)
{
    const Configuration &configuration = workload.configuration(1000, Steps::Displacing);
    const auto load = [&] {
        QvelShortcutManager store;
        workload.load(configuration, store);
        return configuration.faultOf(store);
    };
    if (isWrong(state, load()))
        return;
    countCompilations(state, 0, [&] {
        bool done = true;
        for (int i = 0; i < fileCount / 2; ++i)
            done = load().isEmpty() && done;
        return done;
    });
}

} // namespace

void addSchemaRows(Workload &workload)
{
    addRow("schemas compiled, first 50 files", "one for each schema", 1,
           [&](benchmark::State &state) { countAtFirstUse(state, workload); });
    addRow("schemas compiled, after a change", "the one that changed", 1,
           [&](benchmark::State &state) { countAfterChange(state, workload); });
    addRow("schemas compiled, 50 later loads", "none", 1,
           [&](benchmark::State &state) { countInLaterLoads(state, workload); });
}

} // namespace CUI::Bench
