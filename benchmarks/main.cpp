#include "BrowsingStage.h"
#include "Configuration.h"
#include "Rows.h"

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>

using namespace CUI::Bench;

namespace {

QtMessageHandler standardHandler = nullptr;

// Every window on a screen that does not exist says this, in the middle of the table.
void dropSizeHintWarnings(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.endsWith(QLatin1String("propagateSizeHints()"))
        && !text.endsWith(QLatin1String("raise()")))
        standardHandler(type, context, text);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;

    standardHandler = qInstallMessageHandler(dropSizeHintWarnings);
    // Debian turns debug lines on for everyone; a line a key would bury the table.
    QLoggingCategory::setFilterRules(QStringLiteral("cui.*.debug=false"));

    Workload workload;
    addSchemaRows(workload);
    addLoadRows(workload);
    addStoreRows(workload);
    addEditRows(workload);
    addPresetRows(workload);
    Stages stages(workload);
    addTypingRows(stages);
    addTableRows(stages);
    addEditorRows(workload, stages);
    addFindingRows(stages);

    Table table;
    const std::size_t rows = benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    if (rows > 0 && !table.isWithinLimits())
        std::puts("\nA limit is exceeded.");
    return rows > 0 && table.isWithinLimits() ? 0 : 1;
}
