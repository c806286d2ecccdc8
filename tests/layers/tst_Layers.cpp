#include "IncludeWalk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

using namespace CUI;

namespace {

const QStringList walkedFolders = {QStringLiteral("src"), QStringLiteral("examples"),
                                   QStringLiteral("tools")};

enum Layer { Values = 1, Services, Codecs, Store, Models, Widgets, Hosts };

// The first pattern that covers a file counts.
const struct {
    const char *pattern;
    Layer layer;
} layerTable[] = {
        {"src/UiCustomizationsExport.h", Values},
        {"src/ActionManager/ActionIdentifier.*", Values},
        {"src/ActionManager/VelAction.*", Values},
        {"src/ActionManager/VelActionContext.*", Values},
        {"src/HotkeyFiles/ConfigType.*", Values},
        {"src/Shortcuts/CaseFoldedText.*", Values},
        {"src/Shortcuts/KeyNames.*", Values},
        {"src/Shortcuts/QShortcutsList.*", Values},
        {"src/Shortcuts/ShortcutTransformation.*", Values},
        {"src/Shortcuts/OpenSteps.*", Values},
        {"src/Shortcuts/TransformationCollapser.*", Values},

        {"src/ActionManager/ICuiActionManager.*", Services},
        {"src/HotkeyEditor/HotkeyRecorder.*", Services},
        {"src/HotkeyFiles/IPathManager.*", Services},
        {"src/MessageLog/LazyLog.*", Services},
        {"src/MessageLog/QvelFileMessageLogger.*", Services},
        {"src/MessageLog/QvelMessageLog.*", Services},
        {"src/Platform/*", Services},
        {"src/Translations.cpp", Services},

        {"src/HotkeyFiles/*", Codecs},

        {"src/Shortcuts/ShortcutOwnerIndex.*", Store},
        {"src/Shortcuts/QvelShortcutManager*", Store},

        {"src/Models/ActionBindings.*", Widgets},
        {"src/Models/ActionReach.*", Widgets},
        {"src/Models/AdoptedActions.*", Widgets},
        {"src/Models/QvelActionBinder.*", Widgets},
        {"src/Models/QvelMenusWidget.*", Widgets},
        {"src/Models/WindowActions.*", Widgets},
        {"src/Models/*", Models},

        {"src/HotkeyEditor/*", Widgets},
        {"src/MessageLog/QvelMessageLogWidget.*", Widgets},

        {"examples/*/*", Hosts},
        {"tools/*/*", Hosts},
};

LayerRules projectRules()
{
    LayerRules rules;
    for (const auto &row : layerTable)
        rules.layers.append({QString::fromLatin1(row.pattern), row.layer});
    rules.firstWidgetLayer = Models;
    rules.hostLayer = Hosts;
    rules.outsideHeaders = {QStringLiteral("VelUtil.h")};
    rules.platformFolder = QStringLiteral("src/Platform/");
    const QStringList widgetDirs =
            QStringLiteral(CUI_QT_WIDGETS_INCLUDE_DIRS).split(QLatin1Char('|'));
    for (const QString &dir : widgetDirs) {
        if (QFileInfo(dir).fileName() != QLatin1String("QtWidgets"))
            continue;
        for (const QString &header : QDir(dir).entryList(QDir::Files))
            rules.widgetHeaders.insert(header);
    }
    return rules;
}

void write(const QDir &root, const QString &path, const QByteArray &text)
{
    const QFileInfo info(root.filePath(path));
    QVERIFY(QDir().mkpath(info.path()));
    QFile file(info.filePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
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
    QVERIFY(rules.widgetHeaders.contains(QStringLiteral("QWidget")));
    QVERIFY(rules.widgetHeaders.contains(QStringLiteral("qaction.h")));

    const WalkResult result = walkIncludes(QStringLiteral(CUI_SOURCE_DIR), walkedFolders, rules);
    QVERIFY(result.files.contains(QStringLiteral("src/Shortcuts/QvelShortcutManager.h")));
    QVERIFY(result.files.contains(QStringLiteral("examples/minimal/main.cpp")));
    QVERIFY(result.files.contains(QStringLiteral("tools/hotkeyctl/main.cpp")));
    QVERIFY2(result.findings.isEmpty(), qPrintable(result.findings.join(QLatin1Char('\n'))));
}

void LayersTest::findsWhatAMadeUpTreeDoesWrong_data()
{
    QTest::addColumn<Tree>("tree");
    QTest::addColumn<QStringList>("findings");

    const QString list = QStringLiteral("src/Shortcuts/QShortcutsList.h");
    const QString manager = QStringLiteral("src/Shortcuts/QvelShortcutManager.h");
    const QString managerSource = QStringLiteral("src/Shortcuts/QvelShortcutManager.cpp");
    const QString identifier = QStringLiteral("src/ActionManager/ActionIdentifier.h");
    const QString host = QStringLiteral("examples/host/SampleHost.cpp");
    const QString hostHeader = QStringLiteral("examples/host/SampleHost.h");
    const QString tool = QStringLiteral("tools/hotkeyctl/main.cpp");

    QTest::newRow("arrows down and sideways, Qt, the standard library, the utilities")
            << Tree{{identifier, "#include <QString>\n#include <cstddef>\n"},
                    {list, "#include \"ActionIdentifier.h\"\n"},
                    {manager, "#include \"QShortcutsList.h\"\n#include \"VelUtil.h\"\n"},
                    {hostHeader, "#include <UiCustomizations/QvelShortcutManager.h>\n"},
                    {host, "#include \"SampleHost.h\"\n#include <VelUtil.h>\n"
                           "#include <QtCore/qglobal.h>\n"},
                    {tool, "#include \"SampleHost.h\"\n#include <QCoreApplication>\n"}}
            << QStringList();
    QTest::newRow("a value that includes the store")
            << Tree{{list, "\n#include \"QvelShortcutManager.h\"\n"}, {manager, ""}}
            << QStringList{list + QStringLiteral(":2: layer 1 includes ") + manager
                           + QStringLiteral(" of layer 4")};
    QTest::newRow("the same arrow by the public name")
            << Tree{{list, "#include <UiCustomizations/QvelShortcutManager.h>"}, {manager, ""}}
            << QStringList{list + QStringLiteral(":1: layer 1 includes ") + manager
                           + QStringLiteral(" of layer 4")};
    QTest::newRow("two headers that include each other")
            << Tree{{identifier, "#include \"QShortcutsList.h\"\n"},
                    {list, "#include \"ActionIdentifier.h\"\n"}}
            << QStringList{list + QStringLiteral(":1: closes the circle ") + identifier
                           + QStringLiteral(" > ") + list + QStringLiteral(" > ") + identifier};
    QTest::newRow("a header that includes itself")
            << Tree{{list, "#include \"QShortcutsList.h\"\n"}}
            << QStringList{list + QStringLiteral(":1: closes the circle ") + list
                           + QStringLiteral(" > ") + list};
    QTest::newRow("widgets in the store, in each spelling")
            << Tree{{managerSource,
                     "#include <QWidget>\n#  include <QtWidgets>\n"
                     "#include <QtWidgets/qmenu.h>\n#include <qaction.h>\n#include <QObject>\n"}}
            << QStringList{
                       managerSource
                               + QStringLiteral(
                                       ":1: includes the widget header <QWidget> in layer 4"),
                       managerSource
                               + QStringLiteral(
                                       ":2: includes the widget header <QtWidgets> in layer 4"),
                       managerSource
                               + QStringLiteral(":3: includes the widget header "
                                                "<QtWidgets/qmenu.h> in layer 4"),
                       managerSource
                               + QStringLiteral(
                                       ":4: includes the widget header <qaction.h> in layer 4")};
    QTest::newRow("widgets in models, widgets and hosts")
            << Tree{{QStringLiteral("src/Models/Rows.cpp"), "#include <QStyle>\n"},
                    {QStringLiteral("src/HotkeyEditor/Page.cpp"), "#include <QWidget>\n"},
                    {tool, "#include <QApplication>\n"}}
            << QStringList();
    QTest::newRow("platform questions outside and inside the platform folder")
            << Tree{{list,
                     "#ifdef Q_OS_WIN\n#endif\n#if defined(A) || \\\n  defined(__linux__)\n#endif\n"
                     "#ifndef _WIN32\n#elif defined Q_OS_MACOS\n#endif\n#ifdef QT_DEBUG\n#endif\n"},
                    {QStringLiteral("src/Platform/Keys_windows.cpp"), "#ifdef _WIN64\n#endif\n"}}
            << QStringList{list + QStringLiteral(":1: asks for Q_OS_WIN outside src/Platform/"),
                           list + QStringLiteral(":3: asks for __linux__ outside src/Platform/"),
                           list + QStringLiteral(":6: asks for _WIN32 outside src/Platform/"),
                           list + QStringLiteral(":7: asks for Q_OS_MACOS outside src/Platform/")};
    QTest::newRow("a host that looks behind the public headers")
            << Tree{{manager, ""},
                    {host, "#include \"QvelShortcutManager.h\"\n#include \"VelUtil.h\"\n"},
                    {tool, "#include <unistd.h>\n#include <UiCustomizations/Nothing.h>\n"}}
            << QStringList{host + QStringLiteral(":1: includes ") + manager
                                   + QStringLiteral(" past the public headers"),
                           host + QStringLiteral(":2: includes \"VelUtil.h\", which is not here"),
                           tool
                                   + QStringLiteral(":1: includes <unistd.h>, which is neither "
                                                    "public, Qt nor standard"),
                           tool
                                   + QStringLiteral(":2: includes <UiCustomizations/Nothing.h>, "
                                                    "which is not here")};
    QTest::newRow("files that the table does not know")
            << Tree{{QStringLiteral("src/Stray.h"), ""},
                    {QStringLiteral("src/Shortcuts/Stray.cpp"), ""}}
            << QStringList{QStringLiteral("src/Shortcuts/Stray.cpp:0: has no place in the table "
                                          "of layers"),
                           QStringLiteral("src/Stray.h:0: has no place in the table of layers")};
    QTest::newRow("includes in comments and strings are none")
            << Tree{{list,
                     "// a \" quote\n/*\n#include \"QvelShortcutManager.h\"\n*/\n"
                     "//#include <QWidget>\nconst char *a = \"/*\"; const int b = 1'000;\n"
                     "const char *c = R\"(\n#include <QMenu>\n)\";\n/* x */ #include <QLabel>\n"},
                    {manager, ""}}
            << QStringList{list
                           + QStringLiteral(":10: includes the widget header <QLabel> in layer 1")};
}

void LayersTest::findsWhatAMadeUpTreeDoesWrong()
{
    QFETCH(Tree, tree);
    QFETCH(QStringList, findings);

    QTemporaryDir root;
    QVERIFY(root.isValid());
    for (auto file = tree.cbegin(); file != tree.cend(); ++file)
        write(QDir(root.path()), file.key(), file.value());

    const WalkResult result = walkIncludes(root.path(), walkedFolders, projectRules());
    QCOMPARE(result.files, QStringList(tree.keys()));
    QCOMPARE(result.findings, findings);
}

QTEST_APPLESS_MAIN(LayersTest)
#include "tst_Layers.moc"
