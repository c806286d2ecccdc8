#include "IncludeWalk.h"
#include "Text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace CUI;

namespace {

const QStringList walkedFolders = {s("src"), s("examples"), s("tools")};

enum Layer { Values = 1, Services, Codecs, Store, Models, Widgets, Hosts };

// The first pattern that covers a file counts.
const struct {
    Layer layer;
    const char *patterns;
} layerTable[] = {
        {Values,
         "src/UiCustomizationsExport.h src/ActionManager/ActionIdentifier.* "
         "src/ActionManager/VelAction.* src/ActionManager/VelActionContext.* "
         "src/HotkeyFiles/ConfigType.* src/Shortcuts/CaseInsensitiveKey.* "
         "src/Shortcuts/HotkeyClaims.* src/Shortcuts/HotkeyFinding.* "
         "src/Shortcuts/HotkeyReservation.* "
         "src/Shortcuts/NearbyKeys.* src/Shortcuts/NearestHolder.* src/Shortcuts/JoinedHotkeys.* "
         "src/Shortcuts/KeyNames.* src/Shortcuts/QShortcutsList.* "
         "src/Shortcuts/ShortcutTransformation.* src/Shortcuts/VirtualKeys.* "
         "src/Shortcuts/RecordedSteps.*"},
        {Services,
         "src/ActionManager/ICuiActionManager.* src/HotkeyEditor/HotkeyRecorder.* "
         "src/HotkeyFiles/IPathManager.* src/HotkeyFiles/InstalledPaths.* src/MessageLog/LazyLog.* "
         "src/MessageLog/QvelFileMessageLogger.* src/MessageLog/QvelMessageLog.* "
         "src/Platform/* src/Translations.cpp"},
        {Codecs, "src/HotkeyFiles/*"},
        {Store, "src/Shortcuts/HotkeyAudit* src/Shortcuts/HotkeySet* "
                "src/Shortcuts/ShortcutOwnerIndex.* "
                "src/Shortcuts/QvelShortcutManager*"},
        {Widgets, "src/ActionBinder/* src/Models/ActionBindings.* src/Models/ActionReach.* "
                  "src/Models/AdoptedActions.* src/Models/QvelActionBinder.* "
                  "src/Models/QvelMenusWidget.* src/Models/WindowActions.*"},
        {Models, "src/Models/*"},
        {Widgets, "src/HotkeyEditor/* src/KeyCapture/* src/MessageLog/QvelMessageLogWidget.*"},
        {Hosts, "examples/*/* tools/*/*"},
};

LayerRules projectRules()
{
    LayerRules rules;
    for (const auto &row : layerTable) {
        for (const QString &pattern : s(row.patterns).split(QLatin1Char(' ')))
            rules.layers.append({pattern, row.layer});
    }
    rules.firstWidgetLayer = Models;
    rules.hostLayer = Hosts;
    rules.outsideHeaders = {s("VelUtil.h")};
    rules.platformFolder = s("src/Platform/");
    const QStringList widgetDirs = s(CUI_QT_WIDGETS_INCLUDE_DIRS).split(QLatin1Char('|'));
    for (const QString &dir : widgetDirs) {
        if (QFileInfo(dir).fileName() != QLatin1String("QtWidgets"))
            continue;
        for (const QString &header : QDir(dir).entryList(QDir::Files))
            rules.widgetHeaders.insert(header);
    }
    return rules;
}

using Tree = QMap<QString, QByteArray>;

} // namespace

Q_DECLARE_METATYPE(Tree)

class LayersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProjectKeepsItsLayers();
    void findsWhatAMadeUpTreeDoesWrong_data();
    void findsWhatAMadeUpTreeDoesWrong();
};

void LayersTest::theProjectKeepsItsLayers()
{
    const LayerRules rules = projectRules();
    QVERIFY(rules.widgetHeaders.contains(s("QWidget")));
    QVERIFY(rules.widgetHeaders.contains(s("qaction.h")));

    const WalkResult result = walkIncludes(s(CUI_SOURCE_DIR), walkedFolders, rules);
    QVERIFY(result.files.contains(s("src/Shortcuts/QvelShortcutManager.h")));
    QVERIFY(result.files.contains(s("examples/minimal/main.cpp")));
    QVERIFY(result.files.contains(s("tools/hotkeyctl/main.cpp")));
    QVERIFY2(result.findings.isEmpty(), qPrintable(result.findings.join(QLatin1Char('\n'))));
}

void LayersTest::findsWhatAMadeUpTreeDoesWrong_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QString>("findings");

    const QString identifier = s("src/ActionManager/ActionIdentifier.h");
    const QString value = s("src/Shortcuts/QShortcutsList.h");
    const QString store = s("src/Shortcuts/QvelShortcutManager.h");
    const QString host = s("examples/host/SampleHost.cpp");
    const QString hostHeader = s("examples/host/SampleHost.h");
    const QString tool = s("tools/hotkeyctl/main.cpp");
    const auto row = [](const char *name, const Tree &tree, const char *findings) {
        QTest::newRow(name) << tree << findings;
    };
    row("arrows down and sideways, Qt, the standard library, the utilities",
        {{identifier, "#include <QString>\n#include <cstddef>\n"},
         {value, "#include \"ActionIdentifier.h\"\n"},
         {store, "#include \"QShortcutsList.h\"\n#include \"VelUtil.h\"\n"},
         {hostHeader, "#include <UiCustomizations/QvelShortcutManager.h>\n"},
         {host, "#include \"SampleHost.h\"\n#include <VelUtil.h>\n#include <QtCore/qglobal.h>\n"},
         {tool, "#include \"SampleHost.h\"\n#include <QCoreApplication>\n"}},
        "");
    row("a value that includes the store, by either name",
        {{value, "\n#include \"QvelShortcutManager.h\"\n"},
         {identifier, "#include <UiCustomizations/QvelShortcutManager.h>"},
         {store, ""}},
        "src/ActionManager/ActionIdentifier.h:1: layer 1 includes "
        "src/Shortcuts/QvelShortcutManager.h of layer 4|"
        "src/Shortcuts/QShortcutsList.h:2: layer 1 includes "
        "src/Shortcuts/QvelShortcutManager.h of layer 4");
    row("two headers that include each other",
        {{identifier, "#include \"QShortcutsList.h\"\n"},
         {value, "#include \"ActionIdentifier.h\"\n"}},
        "src/Shortcuts/QShortcutsList.h:1: closes the circle src/ActionManager/ActionIdentifier.h "
        "> src/Shortcuts/QShortcutsList.h > src/ActionManager/ActionIdentifier.h");
    row("a header that includes itself", {{value, "#include \"QShortcutsList.h\"\n"}},
        "src/Shortcuts/QShortcutsList.h:1: closes the circle src/Shortcuts/QShortcutsList.h > "
        "src/Shortcuts/QShortcutsList.h");
    row("widgets in the store, in each spelling",
        {{store, "#include <QWidget>\n#  include <QtWidgets>\n"
                 "#include <QtWidgets/qmenu.h>\n#include <qaction.h>\n#include <QObject>\n"}},
        "src/Shortcuts/QvelShortcutManager.h:1: includes the widget header <QWidget> in layer 4|"
        "src/Shortcuts/QvelShortcutManager.h:2: includes the widget header <QtWidgets> in layer 4|"
        "src/Shortcuts/QvelShortcutManager.h:3: includes the widget header <QtWidgets/qmenu.h> in "
        "layer 4|"
        "src/Shortcuts/QvelShortcutManager.h:4: includes the widget header <qaction.h> in layer 4");
    row("widgets in models, widgets and hosts",
        {{s("src/Models/Rows.cpp"), "#include <QStyle>\n"},
         {s("src/HotkeyEditor/Page.cpp"), "#include <QWidget>\n"},
         {tool, "#include <QApplication>\n"}},
        "");
    row("platform questions outside and inside the platform folder",
        {{value, "#ifdef Q_OS_WIN\n#endif\n#if defined(A) || \\\n  defined(__linux__)\n#endif\n"
                 "#ifndef _WIN32\n#elif defined Q_OS_MACOS\n#endif\n#ifdef QT_DEBUG\n#endif\n"},
         {s("src/Platform/Keys_windows.cpp"), "#ifdef _WIN64\n#endif\n"}},
        "src/Shortcuts/QShortcutsList.h:1: asks for Q_OS_WIN outside src/Platform/|"
        "src/Shortcuts/QShortcutsList.h:3: asks for __linux__ outside src/Platform/|"
        "src/Shortcuts/QShortcutsList.h:6: asks for _WIN32 outside src/Platform/|"
        "src/Shortcuts/QShortcutsList.h:7: asks for Q_OS_MACOS outside src/Platform/");
    row("a host that looks behind the public headers",
        {{store, ""},
         {host, "#include \"QvelShortcutManager.h\"\n#include \"VelUtil.h\"\n"},
         {tool, "#include <unistd.h>\n#include <UiCustomizations/Nothing.h>\n"}},
        "examples/host/SampleHost.cpp:1: includes src/Shortcuts/QvelShortcutManager.h past the "
        "public headers|"
        "examples/host/SampleHost.cpp:2: includes \"VelUtil.h\", which is not here|"
        "tools/hotkeyctl/main.cpp:1: includes <unistd.h>, which is neither public, Qt nor standard|"
        "tools/hotkeyctl/main.cpp:2: includes <UiCustomizations/Nothing.h>, which is not here");
    row("files that the table does not know",
        {{s("src/Stray.h"), ""}, {s("src/Shortcuts/Stray.cpp"), ""}},
        "src/Shortcuts/Stray.cpp:0: has no place in the table of layers|"
        "src/Stray.h:0: has no place in the table of layers");
    row("includes in comments and strings are none",
        {{value, "// a \" quote\n/*\n#include \"QvelShortcutManager.h\"\n*/\n"
                 "//#include <QWidget>\nconst char *a = \"/*\"; const int b = 1'000; /*\n"
                 "#include <QMenu>\n*/ const char *c = R\"x(\n#include <QMenu>\n)\" )x\";\n"
                 "char d = '\"'; /*\n*/ #include <QLabel>\n"},
         {store, ""}},
        "src/Shortcuts/QShortcutsList.h:12: includes the widget header <QLabel> in layer 1");
}

void LayersTest::findsWhatAMadeUpTreeDoesWrong()
{
    QFETCH(Tree, tree);
    QFETCH(QString, findings);

    QTemporaryDir root;
    for (auto source = tree.cbegin(); source != tree.cend(); ++source) {
        QFile file(root.filePath(source.key()));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(source.value()), qint64(source.value().size()));
    }
    const WalkResult result = walkIncludes(root.path(), walkedFolders, projectRules());
    QCOMPARE(result.files, QStringList(tree.keys()));
    QCOMPARE(result.findings, list(findings.toUtf8()));
}

QTEST_APPLESS_MAIN(LayersTest)
#include "tst_Layers.moc"
