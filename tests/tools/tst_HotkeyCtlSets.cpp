#include "SampleHost.h"
#include "ToolHost.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>
#include <QtTest>

#include <sys/stat.h>

/// The commands that choose among sets and compare them: sets, use and diff, and sets by name.
class HotkeyCtlSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsTheSets();
    void listsTheSetsAsJson();
    void tellsOfACurrentSetThatIsNotListed();
    void usesASet_data();
    void usesASet();
    void recordsTheDefaultSetWhenItIsChosen();
    void refusesWhatIsNoSet_data();
    void refusesWhatIsNoSet();
    void saysWhenTheChoiceCannotBeRecorded();
    void takesANameInThePlaceOfAPath();
    void knowsANameBeforeAndAfterTranslation();
    void comparesAsText_data();
    void comparesAsText();
    void comparesAsJson();
    void comparesAsTheListsDo();

private:
    QString path(const char *name) const { return m_host->path(QString::fromUtf8(name)); }
    Outcome runOn(const char *command, const QString &set) const
    {
        return m_host->run({QString::fromUtf8(command), set});
    }

    std::unique_ptr<ToolHost> m_host;
};

namespace {

const QByteArray plainSet = "<VelHotkeyTransformations/>";

QByteArray described(const QByteArray &description, const QByteArray &steps)
{
    return "<VelHotkeyTransformations Description=\"" + description + "\">" + steps
           + "</VelHotkeyTransformations>";
}

QByteArray step(const char *kind, const char *shortcut, const char *id)
{
    return QByteArray("<") + kind + "_Hotkey Shortcut=\"" + shortcut + "\" Id=\"" + id + "\"/>";
}

/// Translates the name of one set.
class MineTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(sourceText, "Mine") == 0 ? QStringLiteral("Meins") : QString();
    }
};

QJsonArray jsonOf(const Outcome &outcome)
{
    return QJsonDocument::fromJson(outcome.out.toUtf8()).array();
}

} // namespace

void HotkeyCtlSetsTest::init()
{
    m_host = std::make_unique<ToolHost>();
    const auto write = [this](const char *name, const QByteArray &contents) {
        m_host->write(QString::fromUtf8(name), contents);
    };
    write("user/a.hsx", described("Mine", step("Assign", "F9", "1-plain")));
    write("user/b.hsx", described("Twin", step("Assign", "F10", "1-plain")));
    write("user/c.hsx", described("Twin", ""));
    QVERIFY(QFile::setPermissions(path("user/c.hsx"), QFileDevice::ReadOwner));
    write("user/line\nbreak.hsx", plainSet);
    write("user/鍵.hsx", plainSet);
    write("elsewhere/d.hsx", described("Elsewhere", step("Assign", "F11", "1-plain")));
    // None of these is a set, and reading the pipe would wait forever.
    write("user/broken.hsx", described("Broken", "<Oops/>"));
    QVERIFY(QDir().mkdir(path("user/folder.hsx")));
    QVERIFY(QFile::link(path("nowhere"), path("user/nowhere.hsx")));
    QVERIFY(QFile::link(path("user/self.hsx"), path("user/self.hsx")));
    QCOMPARE(mkfifo(QFile::encodeName(path("user/pipe.hsx")).constData(), 0600), 0);
}

void HotkeyCtlSetsTest::listsTheSets()
{
    const Outcome outcome = m_host->run({QStringLiteral("sets")});
    QCOMPARE(outcome.code, 0);
    QString expected = QStringLiteral(
            "NAME         LOCKED  SHIPPED  CURRENT  WRITABLE  PATH\n"
            "Default      yes     yes      yes      no        @/host/presets/Default.hsx\n"
            "Mine         no      no       no       yes       @/user/a.hsx\n"
            "Twin         no      no       no       yes       @/user/b.hsx\n"
            "Twin         no      no       no       no        @/user/c.hsx\n"
            "line\\nbreak  no      no       no       yes       @/user/line\\nbreak.hsx\n"
            "鍵           no      no       no       yes       @/user/鍵.hsx\n");
    QCOMPARE(outcome.out, expected.replace(QLatin1Char('@'), path("")));
    QVERIFY2(outcome.err.contains(path("user/broken.hsx")), qPrintable(outcome.err));
    QVERIFY(!QFile::exists(path("user/current.json")));
}

void HotkeyCtlSetsTest::listsTheSetsAsJson()
{
    QCOMPARE(runOn("use", path("user/line\nbreak.hsx")).code, 0);
    const Outcome outcome = m_host->run(words("sets --format json"));
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.lines().at(2),
             QStringLiteral("  {\"name\": \"Mine\", \"locked\": false, \"shipped\": false, "
                            "\"current\": false, \"writable\": true, \"path\": \"%1\"},")
                     .arg(path("user/a.hsx")));
    const QJsonArray sets = jsonOf(outcome);
    QCOMPARE(sets.size(), 6);
    QStringList current;
    for (const QJsonValue &value : sets) {
        const QJsonObject set = value.toObject();
        const bool isShipped = set.value(QStringLiteral("shipped")).toBool();
        QCOMPARE(set.value(QStringLiteral("locked")).toBool(), isShipped);
        QCOMPARE(set.value(QStringLiteral("writable")).toBool(),
                 !isShipped && set.value(QStringLiteral("path")).toString() != path("user/c.hsx"));
        if (set.value(QStringLiteral("current")).toBool())
            current << set.value(QStringLiteral("name")).toString();
    }
    QCOMPARE(current, QStringList(QStringLiteral("line\nbreak")));
}

void HotkeyCtlSetsTest::tellsOfACurrentSetThatIsNotListed()
{
    QCOMPARE(runOn("use", path("elsewhere/d.hsx")).code, 0);
    const Outcome outcome = m_host->run({QStringLiteral("sets")});
    QCOMPARE(outcome.lines().last(),
             QStringLiteral("The current set is not among them: ") + path("elsewhere/d.hsx"));
    // A detour to a listed file is not another set.
    QVERIFY(QFile::link(path("user"), path("detour")));
    QCOMPARE(runOn("use", path("detour/a.hsx")).code, 0);
    const QJsonArray sets = jsonOf(m_host->run(words("sets --format json")));
    QVERIFY(sets.at(1).toObject().value(QStringLiteral("current")).toBool());
}

void HotkeyCtlSetsTest::usesASet_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("file");
    const auto row = [](const char *set, const char *file) {
        QTest::newRow(set) << QString::fromUtf8(set) << QString::fromUtf8(file);
    };
    row("Mine", "user/a.hsx");
    row("Default", "host/presets/Default.hsx");
    row("鍵", "user/鍵.hsx");
    row("line\nbreak", "user/line\nbreak.hsx");
    row("line\\nbreak", "user/line\nbreak.hsx"); // as it is printed
    row("@/user/c.hsx", "user/c.hsx");
    row("@/user/../elsewhere/d.hsx", "elsewhere/d.hsx");
}

void HotkeyCtlSetsTest::usesASet()
{
    QFETCH(QString, set);
    QFETCH(QString, file);
    const Outcome outcome = runOn("use", set.replace(QLatin1Char('@'), path("")));
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.lines().size(), 1);
    const QJsonDocument record = QJsonDocument::fromJson(ToolHost::read(path("user/current.json")));
    QCOMPARE(record.object().value(QStringLiteral("hotkeySet")).toString(), m_host->path(file));
    Host::SampleHost next(path("host"), path("user"));
    QVERIFY(next.load());
    QCOMPARE(next.paths()->getCurrentConfigurationFile(CUI::ConfigType::HotkeySet),
             m_host->path(file));
}

void HotkeyCtlSetsTest::recordsTheDefaultSetWhenItIsChosen()
{
    const QString away = path("away.hsx");
    m_host->write(QStringLiteral("away.hsx"), plainSet);
    QCOMPARE(runOn("use", away).code, 0);
    QVERIFY(QFile::remove(away)); // the default is what is in use now
    QCOMPARE(runOn("use", QStringLiteral("Default")).code, 0);
    m_host->write(QStringLiteral("away.hsx"), plainSet);
    QCOMPARE(m_host->run(words("owner F12")).out, QStringLiteral("Editing: Cut (1-cut)\n"));
}

void HotkeyCtlSetsTest::refusesWhatIsNoSet_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("error"); // @ stands for the folder
    const auto row = [](const char *set, const char *error) {
        QTest::newRow(set) << QString::fromUtf8(set) << QString::fromUtf8(error);
    };
    row("Twin",
        "several hotkey sets are named 'Twin'; their paths are: @/user/b.hsx, @/user/c.hsx");
    row("twin", "there is neither a file nor a hotkey set 'twin'; the sets are: Default, Mine, "
                "Twin, Twin, line\\nbreak, 鍵");
    row("Broken", "there is neither a file nor a hotkey set 'Broken'");
    row("@/user/broken.hsx", "@/user/broken.hsx: not valid: ");
    row("@/host/base/base.hsxb", "@/host/base/base.hsxb: not valid: ");
    row("@/user/folder.hsx", "@/user/folder.hsx: is not a regular file");
    row("@/user/pipe.hsx", "@/user/pipe.hsx: is not a regular file");
    row("@/user/nowhere.hsx", "@/user/nowhere.hsx: is a link that leads nowhere");
    row("@/user/self.hsx", "@/user/self.hsx: is a link that leads nowhere");
}

void HotkeyCtlSetsTest::refusesWhatIsNoSet()
{
    QFETCH(QString, set);
    QFETCH(QString, error);
    set.replace(QLatin1Char('@'), path(""));
    error.replace(QLatin1Char('@'), path(""));
    QCOMPARE(runOn("use", QStringLiteral("Mine")).code, 0);
    const QByteArray record = ToolHost::read(path("user/current.json"));

    const Outcome use = runOn("use", set);
    QCOMPARE(use.code, 1);
    QCOMPARE(use.out, QString());
    QVERIFY2(use.err.contains(QLatin1String("hotkeyctl: ") + error), qPrintable(use.err));
    QCOMPARE(ToolHost::read(path("user/current.json")), record);
    for (const QStringList &command :
         {QStringList{QStringLiteral("--set"), set, QStringLiteral("list")},
          QStringList{QStringLiteral("diff"), set, QStringLiteral("base")},
          QStringList{QStringLiteral("diff"), QStringLiteral("base"), set}}) {
        const Outcome outcome = m_host->run(command);
        QCOMPARE(outcome.code, 1);
        QCOMPARE(outcome.out, QString());
    }
}

void HotkeyCtlSetsTest::saysWhenTheChoiceCannotBeRecorded()
{
    m_host->write(QStringLiteral("file"), "");
    for (const char *set : {"host/presets/Default.hsx", "user/a.hsx"}) {
        const Outcome outcome =
                ToolHost::runBare({QStringLiteral("--host"), path("host"), QStringLiteral("--user"),
                                   path("file"), QStringLiteral("use"), path(set)});
        QCOMPARE(outcome.code, 1);
        QCOMPARE(outcome.out, QString());
        QVERIFY2(outcome.err.contains(QLatin1String("hotkeyctl: the current set cannot be ")),
                 qPrintable(outcome.err));
    }
}

void HotkeyCtlSetsTest::takesANameInThePlaceOfAPath()
{
    QCOMPARE(m_host->run(words("--set Mine owner F9")).out,
             QStringLiteral("Editing: Plain (1-plain)\n"));
    // A file that happens to have the name of a set goes first.
    m_host->write(QStringLiteral("Mine"), ToolHost::read(path("elsewhere/d.hsx")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path("")));
    const Outcome outcome = m_host->run(words("--set Mine owner F11"));
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(outcome.out, QStringLiteral("Editing: Plain (1-plain)\n"));
}

void HotkeyCtlSetsTest::knowsANameBeforeAndAfterTranslation()
{
    MineTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(m_host->run({QStringLiteral("sets")})
                    .lines()
                    .at(2)
                    .startsWith(QLatin1String("Meins ")));
    for (const char *name : {"Meins", "Mine"})
        QCOMPARE(runOn("use", QString::fromUtf8(name)).code, 0);
}

void HotkeyCtlSetsTest::comparesAsText_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("out");
    const auto row = [](const char *arguments, const char *out) {
        QTest::newRow(arguments) << words(arguments) << QString::fromUtf8(out);
    };
    row("Mine base", "CONTEXT  ACTION  ID       Mine  base\n"
                     "Editing  Plain   1-plain  F9    none\n");
    row("@/user/a.hsx base", "CONTEXT  ACTION  ID       Mine  base\n"
                             "Editing  Plain   1-plain  F9    none\n");
    row("Default Mine", "CONTEXT  ACTION  ID       Default  Mine\n"
                        "Editing  Cut     1-cut    F12      Ctrl+X\n"
                        "Editing  Plain   1-plain  none     F9\n");
    row("base base", "no differences\n");
    row("Mine Mine", "no differences\n");
    row("base Reordered", "no differences\n");
    row("base Displacing", "CONTEXT  ACTION  ID       base              Displacing\n"
                           "Editing  Copy    1-copy   Ctrl+C, Ctrl+Ins  Ctrl+Ins\n"
                           "Editing  Plain   1-plain  none              Ctrl+C\n"
                           "View     Copy    2-copy   Ctrl+C            Ctrl+C, F1\n");
}

void HotkeyCtlSetsTest::comparesAsText()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, out);
    arguments.replaceInStrings(QStringLiteral("@"), path(""));
    m_host->write(QStringLiteral("user/reordered.hsx"),
                  described("Reordered", step("Unassign", "Ctrl+C", "1-copy")
                                                 + step("Assign", "Ctrl+C", "1-copy")));
    m_host->write(QStringLiteral("user/displacing.hsx"),
                  described("Displacing",
                            step("Assign", "F1", "2-copy") + step("Assign", "Ctrl+C", "1-plain")));
    const Outcome outcome = m_host->run(QStringList(QStringLiteral("diff")) + arguments);
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out, out);
    QVERIFY(!QFile::exists(path("user/current.json")));
}

void HotkeyCtlSetsTest::comparesAsJson()
{
    const Outcome outcome = m_host->run(words("diff base Mine --format json"));
    QCOMPARE(outcome.code, 0);
    QCOMPARE(outcome.out,
             QStringLiteral("[\n  {\"contextId\": 1, \"context\": \"Editing\", \"category\": "
                            "\"Edit\", \"action\": \"Plain\", \"id\": \"1-plain\", \"a\": [], "
                            "\"b\": [\"F9\"]}\n]\n"));
    QCOMPARE(m_host->run(words("diff Mine Mine --format json")).out, QStringLiteral("[]\n"));
}

// The hotkeys under each of two sets are also what listing shows with the one and the other.
void HotkeyCtlSetsTest::comparesAsTheListsDo()
{
    const QStringList options = {QStringLiteral("--user"), path("user")};
    const QString a = QStringLiteral("Velstudio Default Keyset");
    const QString b = QStringLiteral("Zarvi Default Keyset");
    const auto listed = [&options](const QString &set) {
        return jsonOf(ToolHost::runBare(options + QStringList{QStringLiteral("--set"), set}
                                        + words("list --format json")));
    };
    const auto sorted = [](const QJsonValue &hotkeys) {
        QStringList texts;
        for (const QJsonValue &hotkey : hotkeys.toArray())
            texts << hotkey.toString();
        texts.sort();
        return texts;
    };
    const QJsonArray listOfA = listed(a);
    const QJsonArray listOfB = listed(b);
    QCOMPARE(listOfA.size(), listOfB.size());
    QJsonArray expected;
    for (int i = 0; i < listOfA.size(); ++i) {
        QJsonObject row = listOfA.at(i).toObject();
        const QJsonValue hotkeysOfA = row.take(QStringLiteral("hotkeys"));
        const QJsonValue hotkeysOfB = listOfB.at(i).toObject().value(QStringLiteral("hotkeys"));
        row.remove(QStringLiteral("baseHotkeys"));
        row.remove(QStringLiteral("changed"));
        row.insert(QStringLiteral("a"), hotkeysOfA);
        row.insert(QStringLiteral("b"), hotkeysOfB);
        if (sorted(hotkeysOfA) != sorted(hotkeysOfB))
            expected.append(row);
    }
    QVERIFY(expected.size() > 100 && expected.size() < listOfA.size());
    QCOMPARE(jsonOf(ToolHost::runBare(options + QStringList{QStringLiteral("diff"), a, b}
                                      + words("--format json"))),
             expected);
}

QTEST_GUILESS_MAIN(HotkeyCtlSetsTest)
#include "tst_HotkeyCtlSets.moc"
