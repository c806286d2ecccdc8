#include "HostCatalogue.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Host::HostCatalogue;

namespace {

const QByteArray sample = R"({
  "defaultSet": "Mine.hsx",
  "contexts": [
    {"id": 3, "name": "Viewport"},
    {"id": 1, "name": "Editing"}
  ],
  "actions": [
    {"table": 1, "id": "undo", "name": "Undo", "context": 1, "category": "Edit",
     "momentary": false, "accelerators": ["Ctrl+Z", "Num+5"]},
    {"table": 1, "id": "orbit", "name": "Orbit", "context": 3, "category": "View",
     "momentary": true},
    {"table": 4294967295, "id": "undo", "name": "", "context": 3, "category": ""}
  ]
})";

} // namespace

class HostCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsThere();
    void refusesWhatIsWrong_data();
    void refusesWhatIsWrong();
    void refusesFilesItCannotRead();
};

void HostCatalogueTest::readsWhatIsThere()
{
    QString error;
    const auto catalogue = HostCatalogue::parse(sample, QStringLiteral("f"), error);
    QVERIFY2(catalogue, qPrintable(error));
    QCOMPARE(catalogue->defaultSet, QStringLiteral("Mine.hsx"));
    QCOMPARE(catalogue->contexts.size(), std::size_t(2));
    QCOMPARE(catalogue->contexts[0].id, 3UL);
    QCOMPARE(catalogue->contexts[1].name, QStringLiteral("Editing"));
    QCOMPARE(catalogue->actions.size(), std::size_t(3));

    const HostCatalogue::Action &undo = catalogue->actions[0];
    QCOMPARE(undo.identifier.toString(), QStringLiteral("1-undo"));
    QCOMPARE(undo.name, QStringLiteral("Undo"));
    QCOMPARE(undo.contextId, 1UL);
    QCOMPARE(undo.category, QStringLiteral("Edit"));
    QVERIFY(!undo.momentary);
    QCOMPARE(undo.accelerators, QStringList({QStringLiteral("Ctrl+Z"), QStringLiteral("Num+5")}));
    QVERIFY(catalogue->actions[1].momentary);
    QVERIFY(!catalogue->actions[2].momentary);
    QVERIFY(catalogue->actions[2].accelerators.isEmpty());
    QCOMPARE(catalogue->actions[2].identifier.tableId, 4294967295UL);
}

void HostCatalogueTest::refusesWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *part, const char *replacement, const char *error) {
        QTest::newRow(error) << QByteArray(part) << QByteArray(replacement)
                             << QString::fromUtf8(error);
    };
    const QByteArray all = sample;
    row(all.constData(), "", "host.json:1:1: illegal value");
    row(all.constData(), "[]", "host.json: the catalogue: is not an object");
    row("\"Mine.hsx\",", "\"Mine.hsx\"", "host.json:3:4: unterminated object");
    row("\"Editing\"}", "\"\xc3\x89\xc3\x89\" 1}", "host.json:5:29: unterminated object");
    row("\"Mine.hsx\"", "7", "host.json: defaultSet: is not a text");
    row("Mine.hsx", "../Mine.hsx", "host.json: defaultSet: is not a file name without a folder");
    row("\"defaultSet\": \"Mine.hsx\",", "", "host.json: defaultSet: is missing");
    row("\"actions\":", "\"acts\":", "host.json: acts: is not known here");
    row("{\"id\": 3, \"name\": \"Viewport\"}", "3", "host.json: contexts[0]: is not an object");
    row("\"id\": 1, \"name\"", "\"id\": 3, \"name\"",
        "host.json: contexts[1].id: an earlier context has this id");
    row("\"Viewport\"", "null", "host.json: contexts[0].name: is not a text");
    row("\"id\": 3", "\"id\": \"3\"", "host.json: contexts[0].id: is not a number");
    row("\"id\": 3", "\"id\": 3.5",
        "host.json: contexts[0].id: is not a whole number from 0 to 4294967295");
    row("4294967295", "4294967296",
        "host.json: actions[2].table: is not a whole number from 0 to 4294967295");
    row("\"table\": 1, \"id\": \"orbit\"", "\"table\": -1, \"id\": \"orbit\"",
        "host.json: actions[1].table: is not a whole number from 0 to 4294967295");
    row("\"orbit\"", "\"\"", "host.json: actions[1].id: is empty");
    row("\"orbit\"", "\"undo\"", "host.json: actions[1].id: an earlier action is 1-undo already");
    row("\"context\": 1", "\"context\": 9", "host.json: actions[0].context: there is no context 9");
    row("\"category\": \"View\",", "", "host.json: actions[1].category: is missing");
    row("\"momentary\": true", "\"momentary\": 1",
        "host.json: actions[1].momentary: is neither true nor false");
    row("\"momentary\": true", "\"momentery\": true",
        "host.json: actions[1].momentery: is not known here");
    row("[\"Ctrl+Z\", \"Num+5\"]", "\"Ctrl+Z\"",
        "host.json: actions[0].accelerators: is not an array");
    row("\"Num+5\"", "5", "host.json: actions[0].accelerators[1]: is not a text");
    row("Num+5", "Crtl+5",
        "host.json: actions[0].accelerators[1]: 'Crtl+5' names a key that does not exist");
    row("Num+5", "A, B",
        "host.json: actions[0].accelerators[1]: 'A, B' is more than one key combination");
    row("Ctrl+Z", "", "host.json: actions[0].accelerators[0]: an empty text names no key");
    row("Ctrl+Z", "ctrl+z", "host.json: actions[0].accelerators[0]: 'ctrl+z' is written 'Ctrl+Z'");
}

void HostCatalogueTest::refusesWhatIsWrong()
{
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, replacement);
    QFETCH(QString, error);

    QCOMPARE(sample.count(part), 1);
    QString found;
    QVERIFY(!HostCatalogue::parse(QByteArray(sample).replace(part, replacement),
                                  QStringLiteral("host.json"), found));
    QCOMPARE(found, error);
}

void HostCatalogueTest::refusesFilesItCannotRead()
{
    const QTemporaryDir folder;
    QString error;
    const QString path = folder.filePath(QStringLiteral("host.json"));
    QVERIFY(!HostCatalogue::load(path, error));
    QVERIFY2(error.startsWith(path + QStringLiteral(": cannot be opened: ")), qPrintable(error));

    QVERIFY(!HostCatalogue::load(folder.path(), error));
    QCOMPARE(error, folder.path() + QStringLiteral(": is not a regular file"));

    // Blanks after the catalogue are no fault: only the size is.
    constexpr int limit = 16 * 1024 * 1024;
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(sample.leftJustified(limit, ' '));
    QVERIFY(file.flush());
    QVERIFY2(HostCatalogue::load(path, error), qPrintable(error));
    QCOMPARE(file.write(" "), qint64(1));
    file.close();
    QVERIFY(!HostCatalogue::load(path, error));
    QCOMPARE(error, path + QStringLiteral(": is larger than 16 MiB"));
}

QTEST_GUILESS_MAIN(HostCatalogueTest)
#include "tst_HostCatalogue.moc"
