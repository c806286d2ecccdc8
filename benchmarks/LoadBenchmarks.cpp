#include "Configuration.h"
#include "QvelShortcutManager.h"
#include "Rows.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>
#include <QXmlSchema>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>

namespace CUI::Bench {

namespace {

/// The least that loading two files safely can cost: each is checked against a schema that is
/// compiled already, and read.
class BareReading
{
public:
    explicit BareReading(const Configuration &configuration) : m_configuration(configuration)
    {
        m_baseSchema.load(schemaUrl(QStringLiteral("HotkeyMappingSchema.xsd")));
        m_setSchema.load(schemaUrl(QStringLiteral("HotkeyTransformationSchema.xsd")));
    }

    QString fault()
    {
        if (!m_baseSchema.isValid() || !m_setSchema.isValid())
            return QStringLiteral("A schema cannot be compiled");
        run();
        const int elements = 2 * (m_configuration.actionCount + 1);
        return m_isValid && m_elements == elements ? QString()
                                                   : QStringLiteral("The bare reading failed");
    }

    void run()
    {
        m_elements = 0;
        m_isValid = validate(m_baseSchema, m_configuration.basePath);
        m_isValid = read(m_configuration.basePath) && m_isValid;
        m_isValid = validate(m_setSchema, m_configuration.setPath) && m_isValid;
        m_isValid = read(m_configuration.setPath) && m_isValid;
    }

private:
    static QUrl schemaUrl(const QString &name)
    {
        return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + QLatin1Char('/')
                                   + name);
    }

    static bool validate(const QXmlSchema &schema, const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly)
               && QXmlSchemaValidator(schema).validate(&file, QUrl::fromLocalFile(path));
    }

    bool read(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return false;
        QXmlStreamReader reader(&file);
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement)
                ++m_elements;
        }
        return !reader.hasError();
    }

    const Configuration &m_configuration;
    QXmlSchema m_baseSchema;
    QXmlSchema m_setSchema;
    int m_elements = 0;
    bool m_isValid = false;
};

QString faultOfLoading(Workload &workload, const Configuration &configuration)
{
    QvelShortcutManager store;
    workload.load(configuration, store);
    return configuration.faultOf(store);
}

double secondsOfLoading(Workload &workload, const Configuration &configuration)
{
    QvelShortcutManager store;
    return busySecondsOf([&] { workload.load(configuration, store); });
}

// As many as take the time of the load they are compared with: a short moment is more often free of
// disturbances than a long one.
double meanSecondsOfLoading(Workload &workload, const Configuration &configuration, int loads)
{
    double seconds = 0.0;
    for (int i = 0; i < loads; ++i)
        seconds += secondsOfLoading(workload, configuration);
    return seconds / loads;
}

void compareLoadWithBareReading(benchmark::State &state, Workload &workload)
{
    const Configuration &configuration = workload.configuration(10000, Steps::Displacing);
    BareReading bareReading(configuration);
    if (isWrong(state, faultOfLoading(workload, configuration))
        || isWrong(state, bareReading.fault()))
        return;
    compare(
            state, 1.3, [&] { return secondsOfLoading(workload, configuration); },
            [&] { return busySecondsOf([&] { bareReading.run(); }); });
}

void compareLoadSizes(benchmark::State &state, Workload &workload)
{
    const Configuration &large = workload.configuration(100000, Steps::Displacing);
    const Configuration &small = workload.configuration(10000, Steps::Displacing);
    if (isWrong(state, faultOfLoading(workload, large))
        || isWrong(state, faultOfLoading(workload, small)))
        return;
    compare(
            state, 12.0, [&] { return secondsOfLoading(workload, large); },
            [&] { return meanSecondsOfLoading(workload, small, 10); });
}

void compareLogLevels(benchmark::State &state, Workload &workload)
{
    const Configuration &configuration = workload.configuration(10000, Steps::Separate);
    if (isWrong(state, faultOfLoading(workload, configuration)))
        return;
    compare(
            state, 1.1, [&] { return secondsOfLoading(workload, configuration); },
            [&] {
                const Silence silence;
                return secondsOfLoading(workload, configuration);
            });
}

int linesOfLoading(Workload &workload, int level)
{
    const Configuration &configuration = workload.configuration(10000, Steps::Separate);
    int lines = 0;
    const QMetaObject::Connection connection =
            QObject::connect(&QvelMessageLog::getInstance(), &QvelMessageLog::messageLogged,
                             [&lines](const QString &) { ++lines; });
    Silence::setLevel(level);
    QvelShortcutManager store;
    workload.load(configuration, store);
    Silence::setLevel(QvelMessageLog::Warning);
    QObject::disconnect(connection);
    return lines;
}

void countLogLines(benchmark::State &state, Workload &workload)
{
    // The lines of the most talkative level show that the counting works.
    if (isWrong(state, linesOfLoading(workload, QvelMessageLog::Debug) < 10000
                               ? QStringLiteral("Loading logs less than a line a step")
                               : QString()))
        return;
    int lines = 0;
    for (auto round : state) {
        Q_UNUSED(round)
        state.SetIterationTime(
                secondsOf([&] { lines += linesOfLoading(workload, QvelMessageLog::Warning); }));
    }
    setCount(state, lines, 0);
}

} // namespace

void addLoadRows(Workload &workload)
{
    addRow("load/10k", "a bare check and reading of the two files", 15,
           [&](benchmark::State &state) { compareLoadWithBareReading(state, workload); });
    addRow("load/100k", "loading 10k", 8,
           [&](benchmark::State &state) { compareLoadSizes(state, workload); });
    addRow("load/10k, default log level", "a silent log", 15,
           [&](benchmark::State &state) { compareLogLevels(state, workload); });
    addRow("load/10k, lines logged", "none", 1,
           [&](benchmark::State &state) { countLogLines(state, workload); });
}

} // namespace CUI::Bench
