#include "HostCatalogue.h"
#include "Text.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using Host::HostCatalogue;

namespace {

/// Lets the texts of catalogues stand between single quotes.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

const QByteArray sample = json(R"({
  'defaultSet': 'Mine.hsx',
  'contexts': [
    {'id': 3, 'name': 'Viewport'},
    {'id': 1, 'name': 'Editing'}
  ],
  'actions': [
    {'table': 1, 'id': 'undo', 'name': 'Undo', 'context': 1, 'category': 'Edit',
     'momentary': false, 'accelerators': ['Ctrl+Z', 'Num+5']},
    {'table': 1, 'id': 'orbit', 'name': 'Orbit', 'context': 3, 'category': 'View',
     'momentary': true},
    {'table': 4294967295, 'id': 'undo', 'name': '', 'context': 3, 'category': ''}
  ]
})");

} // namespace

class HostCatalogueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsThere();
    void readsEverySpellingOfAnAccelerator();
    void refusesWhatIsWrong_data();
    void refusesWhatIsWrong();
    void refusesFilesItCannotRead();
};

void HostCatalogueTest::readsWhatIsThere()
{
    QString error;
    const auto catalogue = HostCatalogue::parse(sample, s("f"), error);
    QVERIFY2(catalogue, qPrintable(error));
    QStringList found{catalogue->defaultSet};
    for (const HostCatalogue::Context &context : catalogue->contexts)
        found << s("%1 %2").arg(QString::number(context.id), context.name);
    for (const HostCatalogue::Action &action : catalogue->actions) {
        found << QStringList{action.identifier.toString(), action.name,
                             QString::number(action.contextId), action.category,
                             s(action.momentary ? "momentary" : "")}
                         .join(QLatin1Char('/'));
        found << action.accelerators;
    }
    QCOMPARE(found, list("Mine.hsx|3 Viewport|1 Editing|1-undo/Undo/1/Edit/|Ctrl+Z|Num+5"
                         "|1-orbit/Orbit/3/View/momentary|4294967295-undo//3//"));
}

void HostCatalogueTest::readsEverySpellingOfAnAccelerator()
{
    const QByteArray spellings = json("'shift+Insert', 'Shift+s', 'ctrl+alt+1', 'Ctrl+Shift+', "
                                      "'Crtl+5', '', 'A, B'");
    QString error;
    const auto catalogue = HostCatalogue::parse(
            QByteArray(sample).replace(json("'Ctrl+Z', 'Num+5'"), spellings), s("f"), error);
    QVERIFY2(catalogue, qPrintable(error));
    QCOMPARE(catalogue->actions[0].accelerators, list("Shift+Ins|Shift+S|Ctrl+Alt+1"));
    QCOMPARE(catalogue->warnings.size(), 4);
    QCOMPARE(catalogue->warnings[1], s("f: actions[0].accelerators[4]: 'Crtl+5' names a key that "
                                       "does not exist; it is left out"));
}

void HostCatalogueTest::refusesWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<QString>("error");

    const auto row = [](const QByteArray &part, const char *replacement, const char *error) {
        QTest::newRow(error) << json(part) << json(replacement) << s("host.json:%1").arg(s(error));
    };
    row(sample, "", "1:1: illegal value");
    row("'Mine.hsx',", "'Mine.hsx'", "3:4: unterminated object");
    row("'Editing'}", "'\xc3\x89\xc3\x89' 1}", "5:29: unterminated object");
    row(sample, "[]", " the catalogue: is not an object");
    row("'Mine.hsx'", "7", " defaultSet: is not a text");
    row("Mine.hsx", "../Mine.hsx", " defaultSet: is not a file name without a folder");
    row("'defaultSet': 'Mine.hsx',", "", " defaultSet: is missing");
    row("'actions':", "'acts':", " acts: is not known here");
    row("{'id': 3, 'name': 'Viewport'}", "3", " contexts[0]: is not an object");
    row("'id': 1, 'name'", "'id': 3, 'name'", " contexts[1].id: an earlier context has this id");
    row("'id': 3", "'id': '3'", " contexts[0].id: is not a number");
    row("'name': 'Viewport'", "'name': 'Viewport', 'everywhere': 1",
        " contexts[0].everywhere: is neither true nor false");
    row("'id': 3", "'id': 3.5", " contexts[0].id: is not a whole number from 0 to 4294967295");
    row("4294967295", "4294967296",
        " actions[2].table: is not a whole number from 0 to 4294967295");
    row("1, 'id': 'orbit'", "-1, 'id': 'orbit'",
        " actions[1].table: is not a whole number from 0 to 4294967295");
    row("'orbit'", "''", " actions[1].id: is empty");
    row("'orbit'", "'undo'", " actions[1].id: an earlier action is 1-undo already");
    row("'context': 1", "'context': 9", " actions[0].context: there is no context 9");
    row("'momentary': true", "'momentary': 1", " actions[1].momentary: is neither true nor false");
    row("'momentary': true", "'momentery': true", " actions[1].momentery: is not known here");
    row("['Ctrl+Z', 'Num+5']", "'Ctrl+Z'", " actions[0].accelerators: is not an array");
    row("'actions':", "'together': [[3, 1], 3], 'actions':", " together[1]: is not an array");
    row("'actions':", "'together': [[3, 9]], 'actions':",
        " together[0][1]: is not the id of a context");
    row("'Num+5'", "5", " actions[0].accelerators[1]: is not a text");
}

void HostCatalogueTest::refusesWhatIsWrong()
{
    QFETCH(QByteArray, part);
    QFETCH(QByteArray, replacement);

    QCOMPARE(sample.count(part), 1);
    QString found;
    QVERIFY(!HostCatalogue::parse(QByteArray(sample).replace(part, replacement), s("host.json"),
                                  found));
    QTEST(found, "error");
}

void HostCatalogueTest::refusesFilesItCannotRead()
{
    const QTemporaryDir folder;
    QString error;
    const QString path = folder.filePath(s("host.json"));
    QVERIFY(!HostCatalogue::load(path, error));
    QVERIFY2(error.startsWith(path + s(": cannot be opened: ")), qPrintable(error));

    QVERIFY(!HostCatalogue::load(folder.path(), error));
    QCOMPARE(error, folder.path() + s(": is not a regular file"));

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
    QCOMPARE(error, path + s(": is larger than 16 MiB"));
}

QTEST_GUILESS_MAIN(HostCatalogueTest)
#include "tst_HostCatalogue.moc"
