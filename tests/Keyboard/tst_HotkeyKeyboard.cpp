#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeyKeyboard.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QKeySequence>
#include <QXmlStreamReader>
#include <QtTest>

#include <random>
#include <set>

using namespace CUI;
using State = HotkeyKeyboard::State;
using Shape = KeyboardLayout::Shape;

namespace {

constexpr unsigned long contextCount = 3;
constexpr unsigned long everywhere = 1;

const HotkeyKeyboard::Key &keyOf(const HotkeyKeyboard &keyboard, const char *hotkey)
{
    const HotkeyKeyboard::Key *key = keyboard.keyOf(s(hotkey));
    if (key == nullptr)
        qFatal("no key makes %s", hotkey);
    return *key;
}

} // namespace

Q_DECLARE_METATYPE(KeyboardLayout::Shape)

class HotkeyKeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keysHaveTheirPlaces_data();
    void keysHaveTheirPlaces();
    void showsLabelsAndHotkeys_data();
    void showsLabelsAndHotkeys();
    void statesFollowTheStore();
    void describesKeys();
    void svgHoldsAnyName();

private:
    void assign(const ActionIdentifier &id, const QString &hotkey)
    {
        m_store->assignShortcut(id, hotkey, QString());
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
};

void HotkeyKeyboardTest::init()
{
    m_store = std::make_unique<QvelShortcutManager>();
    m_host.reset();
    m_host = std::make_unique<TestHost>();
    for (unsigned long context = 1; context <= contextCount; ++context) {
        m_host->registry()->addActionContext(context, s("Context %1").arg(context));
        for (int i = 0; i < 40; ++i)
            m_host->registry()->addAction(context, QString::number(i), s("Action %1").arg(i),
                                          context, QString(), false);
    }
}

void HotkeyKeyboardTest::keysHaveTheirPlaces_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<Shape>("shape");
    QTest::addColumn<int>("keys");

    QTest::newRow("ANSI") << s("us") << Shape::Ansi << 104;
    QTest::newRow("ISO") << s("de") << Shape::Iso << 105;
    QTest::newRow("ISO of Brazil") << s("br") << Shape::Iso << 106;
    QTest::newRow("JIS") << s("jp") << Shape::Jis << 109;
    QTest::newRow("ANSI with another script") << s("ru") << Shape::Ansi << 104;
}

/// No key is there twice, leaves the picture or covers another one.
void HotkeyKeyboardTest::keysHaveTheirPlaces()
{
    QFETCH(QString, layout);
    const HotkeyKeyboard keyboard(*KeyboardLayout::named(layout));
    QTEST(keyboard.layout().shape(), "shape");
    QTEST(static_cast<int>(keyboard.keys().size()), "keys");
    const QRectF picture(QPointF(), HotkeyKeyboard::size());
    std::set<int> codes;
    for (const HotkeyKeyboard::Key &key : keyboard.keys()) {
        QVERIFY(codes.insert(key.code).second);
        for (const QRectF &part : key.parts) {
            QVERIFY(picture.contains(part));
            for (const HotkeyKeyboard::Key &other : keyboard.keys()) {
                for (const QRectF &otherPart : other.parts)
                    QVERIFY2(key.code == other.code || !part.intersects(otherPart),
                             qPrintable(key.label + QLatin1Char(' ') + other.label));
            }
        }
    }
}

void HotkeyKeyboardTest::showsLabelsAndHotkeys_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("shown"); // label, label with Shift, key of hotkeys, hotkey

    const auto row = [](const char *layout, int code, int modifiers, const char *shown) {
        QTest::addRow("%s %d %x", layout, code, unsigned(modifiers))
                << code << modifiers << s(shown);
    };
    row("us", 13, Qt::ShiftModifier, "=|+||Shift+=");
    row("us", 28, 0, "Enter|||Enter");
    row("us", 76, Qt::AltModifier, "5|||Alt+Num+5");
    row("us", 1, 0, "Esc|||");
    row("us", 59, Qt::ControlModifier, "F1|||");
    row("us", 15, Qt::ControlModifier, "Tab|||");
    row("de", 86, 0, "<|>||<");
    row("de", 86, Qt::ShiftModifier, "<|>||Shift+>");
    row("de", 83, 0, ",|||Num+,");
    row("fr", 2, Qt::ShiftModifier, "&|1||Shift+1");
    row("ru", 16, 0, "Й||Q|Q");
    row("jp", 41, 0, "半/全|||");
    row("br", 89, 0, "/|?||/");
}

void HotkeyKeyboardTest::showsLabelsAndHotkeys()
{
    QFETCH(int, code);
    QFETCH(int, modifiers);
    HotkeyKeyboard keyboard(
            *KeyboardLayout::named(QString::fromLatin1(QTest::currentDataTag()).left(2)));
    keyboard.setModifiers(Qt::KeyboardModifiers(modifiers));
    for (const HotkeyKeyboard::Key &key : keyboard.keys()) {
        if (key.code == code) {
            QTEST(QStringList({key.label, key.shiftedLabel, key.hotkeyLabel, key.hotkey})
                          .join(QLatin1Char('|')),
                  "shown");
            return;
        }
    }
    QFAIL("there is no such key");
}

/// Against what the store says about each hotkey in each context.
void HotkeyKeyboardTest::statesFollowTheStore()
{
    std::mt19937 random(17);
    const auto below = [&random](unsigned long count) { return random() % count; };
    HotkeyKeyboard keyboard;
    HotkeyAudit::Options options;
    options.everywhere = {everywhere};
    options.systems.clear();
    keyboard.setOptions(options);
    for (int round = 0; round < 200; ++round) {
        const HotkeyKeyboard::Key &pressed = keyboard.keys()[below(keyboard.keys().size())];
        const unsigned long context = 1 + below(contextCount);
        if (!pressed.hotkey.isEmpty())
            assign({context, QString::number(below(40))}, pressed.hotkey);
        std::vector<unsigned long> chosen;
        for (unsigned long c = 1; c <= contextCount; ++c) {
            if (below(2) == 0)
                chosen.push_back(c);
        }
        keyboard.setContexts(chosen);
        keyboard.setModifiers(Qt::KeyboardModifiers(QFlag(int(below(8)) * Qt::ShiftModifier)));
        keyboard.readHotkeys(*m_store);
        for (const HotkeyKeyboard::Key &key : keyboard.keys()) {
            std::set<unsigned long> holders;
            for (unsigned long c = 1; c <= contextCount; ++c) {
                const bool counts =
                        chosen.empty() || std::count(chosen.begin(), chosen.end(), c) > 0;
                if (counts && !m_store->getActionIdFromShortcut(key.hotkey, c).isEmpty())
                    holders.insert(c);
            }
            State expected = State::NoHotkey;
            if (!key.hotkey.isEmpty()) {
                expected = holders.empty()       ? State::Free
                           : holders.size() == 1 ? State::Taken
                                                 : State::TakenInSeveralContexts;
                if (holders.size() > 1 && holders.count(everywhere) > 0)
                    expected = State::Shadowed;
            }
            QVERIFY2(key.state == expected && key.holders.size() == holders.size(),
                     qPrintable(key.hotkey));
        }
    }
}

void HotkeyKeyboardTest::describesKeys()
{
    for (unsigned long context = 1; context <= 2; ++context)
        assign({context, s("7")}, s("Alt+F4"));
    HotkeyKeyboard keyboard;
    HotkeyAudit::Options options;
    options.systems = {HotkeyReservation::System::Kde};
    keyboard.setOptions(options);
    keyboard.setModifiers(Qt::AltModifier);
    keyboard.readHotkeys(*m_store);
    const auto description = [&keyboard] { return keyboard.describe(keyOf(keyboard, "F4")); };
    QCOMPARE(description(), s("Reserved by the system\nAction 7 (Context 1)\nAction 7 (Context 2)\n"
                              "KDE: Close window"));
    options.everywhere = {2};
    keyboard.setOptions(options);
    QVERIFY(description().startsWith(s("Shadowed\nAction 7 (Context 1)\nAction 7 (Context 2)\n")));
    QCOMPARE(description().count(QLatin1Char('\n')), 4); // what it does stands before KDE
}

void HotkeyKeyboardTest::svgHoldsAnyName()
{
    const QString name = s("<script>&\"'") + QChar(0xD800) + QChar(1) + QChar(0xFFFF);
    m_host->registry()->addAction(1, s("odd"), name, 1, QString(), false);
    assign({1, s("odd")}, s("Q"));
    HotkeyKeyboard keyboard;
    keyboard.readHotkeys(*m_store);
    QXmlStreamReader reader(keyboard.toSvg());
    QStringList titles;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement
            && reader.name() == QLatin1String("title"))
            titles.append(reader.readElementText());
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(titles.size(), 104);
    QCOMPARE(titles.filter(s("script")), QStringList(s("Q\nTaken\n<script>&\"' (Context 1)")));
}

QTEST_GUILESS_MAIN(HotkeyKeyboardTest)
#include "tst_HotkeyKeyboard.moc"
