#include "FullDisk.h"
#include "TestHost.h"
#include "Text.h"
#include "WholeFile.h"

#include <UiCustomizations/QvelMessageLog.h>

#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using CUI::WholeFile;

namespace {

/// While it lives, a process of root has only the rights of a user without any.
class PlainUser
{
public:
    PlainUser() : m_before(::geteuid())
    {
        constexpr uid_t nobody = 65534;
        isPlain = m_before != 0 || ::setresuid(nobody, nobody, 0) == 0;
    }
    ~PlainUser()
    {
        if (::geteuid() != m_before && ::setresuid(m_before, m_before, m_before) != 0)
            qFatal("cannot become root again");
    }
    Q_DISABLE_COPY(PlainUser)

    bool isPlain = false;

private:
    uid_t m_before;
};

} // namespace

/// A directory that does not let its files be replaced.
class TestWholeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void writesInPlaceAndSaysSo();
    void keepsTheOldBytesOnAFullDisk();
    void refusesWhatCannotBeWritten();

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(s("closed/a.hsx"));
};

void TestWholeFile::init()
{
    QVERIFY(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755)));
    QVERIFY(QDir(m_folder.path()).mkpath(s("closed")));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("an old text") == 11);
    file.close();
    QVERIFY(file.setPermissions(QFile::Permissions(0x6666)));
    QVERIFY(QFile::setPermissions(m_folder.filePath(s("closed")), QFile::Permissions(0x5555)));
}

void TestWholeFile::cleanup()
{
    QFile::setPermissions(m_folder.filePath(s("closed")), QFile::Permissions(0x7755));
}

void TestWholeFile::writesInPlaceAndSaysSo()
{
    const QSignalSpy log(&CUI::QvelMessageLog::getInstance(), &CUI::QvelMessageLog::messageLogged);
    for (const QByteArray &contents : {QByteArray("new"), QByteArray(5000, 'x'), QByteArray()}) {
        const PlainUser user;
        QVERIFY(user.isPlain);
        WholeFile file(m_path);
        QVERIFY(file.open());
        QVERIFY2(file.write(contents), qPrintable(file.errorString()));
        QCOMPARE(TestHost::read(m_path), contents);
    }
    QCOMPARE(log.size(), 3);
    QCOMPARE(log[0][0].toString(), s("Warning: '%1' could not be replaced and was written in "
                                     "place; the save was not atomic.")
                                           .arg(m_path));
}

void TestWholeFile::keepsTheOldBytesOnAFullDisk()
{
    const PlainUser user;
    QVERIFY(user.isPlain);
    WholeFile file(m_path);
    QVERIFY(file.open());
    {
        const FullDisk disk(50);
        QVERIFY(!file.write(QByteArray(100, 'x')));
    }
    QCOMPARE(TestHost::read(m_path), QByteArray("an old text"));
}

void TestWholeFile::refusesWhatCannotBeWritten()
{
    const PlainUser user;
    QVERIFY(user.isPlain);
    QVERIFY(!WholeFile(m_folder.filePath(s("closed/another.hsx"))).open());
    QVERIFY(!WholeFile(m_folder.filePath(s("closed"))).open());
}

QTEST_GUILESS_MAIN(TestWholeFile)
#include "tst_WholeFile.moc"
