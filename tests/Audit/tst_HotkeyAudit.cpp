#include "TestHost.h"
#include "Text.h"

#include <UiCustomizations/HotkeyAudit.h>
#include <UiCustomizations/QvelActionBinder.h>
#include <UiCustomizations/QvelShortcutManager.h>

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <random>

using namespace CUI;

namespace {

enum Context : unsigned long { File = 1, Window, Mesh, Timeline, View, Sculpt };

/// Two modes of one view.
const std::vector<std::vector<unsigned long>> together = {{Mesh, View}, {Sculpt, View}};

void ignoreAmbiguity(QtMsgType, const QMessageLogContext &, const QString &) { }

/// "held-twice Ctrl+S: 1-save 1-open", one finding a line.
QString linesOf(const HotkeyAudit &audit)
{
    QStringList lines;
    for (const HotkeyFinding &finding : audit.findings()) {
        QString line = QLatin1String(HotkeyFinding::keyOf(finding.kind)) + QLatin1Char(' ')
                       + finding.hotkey + QLatin1Char(':');
        for (const HotkeyFinding::Holder &holder : finding.holders)
            line += QLatin1Char(' ') + holder.action.toString();
        lines << line;
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class HotkeyAuditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void finds_data();
    void finds();
    void saysWhatTheBinderDoes_data();
    void saysWhatTheBinderDoes();
    void proposesFreeKeysNearby();
    void textFieldsTakeTheirKeys();

private:
    void add(const char *id, Context context)
    {
        m_host->registry()->addAction(ActionIdentifier::fromString(s(id)),
                                      s(id).section(QLatin1Char('-'), 1), context, QString(),
                                      false);
    }
    void assign(const QString &id, const QString &hotkey)
    {
        m_store->assignShortcut(ActionIdentifier::fromString(id), hotkey, QString());
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<QvelShortcutManager> m_store;
};

void HotkeyAuditTest::init()
{
    m_store.reset();
    m_host.reset(); // or it would uninstall the new one
    m_host = std::make_unique<TestHost>();
    m_store = std::make_unique<QvelShortcutManager>();
    m_host->registry()->addActionContext(File, s("File"));
    m_host->registry()->addActionContext(Window, s("Window"));
    m_host->registry()->addActionContext(Mesh, s("Mesh"));
    m_host->registry()->addActionContext(Timeline, s("Timeline"));
    m_host->registry()->addActionContext(View, s("View"));
    m_host->registry()->addActionContext(Sculpt, s("Sculpt"));
    for (const char *id : {"1-save", "1-open"})
        add(id, File);
    for (const char *id : {"2-dock", "2-full"})
        add(id, Window);
    for (const char *id : {"3-cut", "3-bevel"})
        add(id, Mesh);
    for (const char *id : {"4-play", "4-cut"})
        add(id, Timeline);
    for (const char *id : {"5-frame", "5-orbit"})
        add(id, View);
    for (const char *id : {"6-draw", "6-smooth"})
        add(id, Sculpt);
}

void HotkeyAuditTest::finds_data()
{
    QTest::addColumn<QString>("hotkeys");
    QTest::addColumn<QString>("base");
    QTest::addColumn<bool>("isOrdered");
    QTest::addColumn<QString>("findings");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *hotkeys, const char *findings, const char *text,
                        const char *base = "", bool isOrdered = false) {
        QTest::addRow("%s %s%s", hotkeys, base, isOrdered ? " ordered" : "")
                << s(hotkeys) << s(base) << isOrdered << s(findings) << s(text);
    };
    row("1-save Ctrl+J|3-cut Ctrl+K|4-play Ctrl+K", "", "");
    row("1-save Shift+Ctrl+J|1-open Ctrl+Shift+J", "held-twice Ctrl+Shift+J: 1-open 1-save",
        "In File this key runs open, never save.");
    row("1-save Ctrl+J|3-cut Ctrl+J|4-play Ctrl+J", "shadowed Ctrl+J: 1-save 3-cut 4-play",
        "In Mesh this key runs cut. In Timeline this key runs play. Elsewhere it runs save.");
    row("1-save Ctrl+J|2-dock Ctrl+J|3-cut Ctrl+J", "ambiguous Ctrl+J: 1-save 2-dock 3-cut",
        "In Mesh this key runs cut. Elsewhere it runs nothing, since these count there equally: "
        "save (File), dock (Window).");
    row("2-dock Ctrl+J|1-save Ctrl+J", "shadowed Ctrl+J: 1-save 2-dock",
        "Everywhere this key runs save, never dock (Window).", "", true);
    row("3-cut Ctrl+J|4-play Ctrl+J|5-frame Ctrl+J", "shadowed Ctrl+J: 3-cut 5-frame",
        "In Mesh this key runs cut, not frame (View). In View this key runs frame.");
    row("1-save Enter|3-cut Return", "shadowed Return: 1-save 3-cut",
        "In Mesh this key runs cut. Elsewhere it runs save.");
    row("1-save Enter|3-cut Enter", "shadowed Enter: 1-save 3-cut",
        "In Mesh this key runs cut. Elsewhere it runs save.");
    row("3-cut Ctrl+Nonsense", "names-no-key Ctrl+Nonsense: 3-cut",
        "No key has this name, so that none runs cut (Mesh).");
    row("3-cut Ctrl+\u00d6|4-play Num+A|3-bevel Ctrl+Q",
        "not-typeable Ctrl+\u00d6: 3-cut\n"
        "not-typeable Num+A: 4-play",
        "The keyboard in use has no such key, so that none runs cut (Mesh).");
    row("3-cut Alt+Tab", "taken-by-desktop Alt+Tab: 3-cut",
        "Windows (Switch windows), KDE (Switch windows), GNOME (Switch windows) may take this "
        "key before it runs cut (Mesh).");
    row("3-cut Ctrl+X|4-cut Ctrl+X", "taken-by-text-fields Ctrl+X: 3-cut 4-cut",
        "While text is typed, this key does not run cut (Mesh), cut (Timeline): Cut, copy or "
        "paste.");
    row("3-cut 5|3-bevel Num+5|4-play Num+5|4-cut Num+6|4-cut 6",
        "differs-by-keypad 5: 3-cut 3-bevel", "5 runs cut, Num+5 runs bevel.");
    row("3-bevel Ctrl+Shift+J|3-cut Ctrl+J", "differs-by-shift Ctrl+J: 3-cut 3-bevel",
        "Ctrl+J runs cut, Ctrl+Shift+J runs bevel.");
    row("3-cut J|3-cut K|3-cut L|3-cut M|3-cut N|4-cut J|4-cut K|4-cut L|4-cut M",
        "near-limit : 3-cut", "cut (Mesh) holds 5 of 6 hotkeys.");
    row("3-bevel Ctrl+J", "hotkey-lost Ctrl+J, F2: 3-cut 3-bevel",
        "cut (Mesh) has lost Ctrl+J, F2, and bevel (Mesh) has it now.", "3-cut Ctrl+J|3-cut F2");
}

void HotkeyAuditTest::finds()
{
    QFETCH(QString, hotkeys);
    QFETCH(QString, base);
    for (const QString &hotkey : list(qPrintable(base)))
        m_host->registry()->accelerators.emplace_back(
                ActionIdentifier::fromString(hotkey.section(QLatin1Char(' '), 0, 0)),
                hotkey.section(QLatin1Char(' '), 1));
    m_store->loadShortcutConfiguration(QString());
    for (const auto &[action, hotkey] : m_host->registry()->accelerators)
        m_store->unassignShortcut(action, hotkey, QString());
    for (const QString &hotkey : list(hotkeys.toUtf8().constData()))
        assign(hotkey.section(QLatin1Char(' '), 0, 0), hotkey.section(QLatin1Char(' '), 1));

    HotkeyAudit::Options options;
    options.everywhere = {File, Window};
    QFETCH(bool, isOrdered);
    options.isEverywhereOrdered = isOrdered;
    options.together = together;
    options.typeableKeys = std::set<int>{Qt::Key_5, Qt::Key_6};
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        options.typeableKeys->insert(key);
    const HotkeyAudit audit(*m_store, options);
    QTEST(linesOf(audit), "findings");
    QTEST(audit.findings().empty() ? QString() : audit.findings().front().text, "text");
}

namespace {

/// What the audit says of a key with the focus in a part of the window; null for nothing.
const HotkeyFinding::Outcome *saidOf(const HotkeyAudit &audit, const QKeySequence &key,
                                     const std::vector<unsigned long> &part)
{
    std::vector<std::optional<unsigned long>> asked(part.begin(), part.end());
    asked.emplace_back();
    for (const HotkeyFinding &finding : audit.findings()) {
        // Held twice tells nothing of other contexts.
        if (QKeySequence(finding.hotkey) != key || finding.kind == HotkeyFinding::Kind::HeldTwice)
            continue;
        for (const auto &context : asked) {
            for (const HotkeyFinding::Outcome &outcome : finding.outcomes) {
                if (outcome.contextId == context)
                    return &outcome;
            }
        }
    }
    return nullptr;
}

} // namespace

void HotkeyAuditTest::saysWhatTheBinderDoes_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 0; seed < 12; ++seed)
        QTest::addRow("%d", seed) << seed;
}

/// The audit of random hotkeys against keys that are pressed in a window with a dock and a view,
/// which has two modes.
void HotkeyAuditTest::saysWhatTheBinderDoes()
{
    QFETCH(int, seed);
    std::mt19937 random(static_cast<unsigned>(seed));
    const QStringList texts = list("Ctrl+J|Ctrl+Shift+J|Shift+Ctrl+J|Enter|Return|J|j");
    QWidget window;
    window.setLayout(new QVBoxLayout);
    window.setFocusPolicy(Qt::StrongFocus);
    QvelActionBinder binder(m_store.get());
    std::vector<QWidget *> parts = {&window, new QWidget, new QWidget};
    for (int i = 1; i < 3; ++i) {
        parts[i]->setFocusPolicy(Qt::StrongFocus);
        window.layout()->addWidget(parts[i]);
    }
    binder.setContextWidget(Timeline, parts[1]);
    binder.setContextWidget(View, parts[2]);
    binder.setContextOrder({Mesh, Sculpt, View});
    ActionIdentifier triggered;
    for (const auto &entry : m_host->registry()->actions()) {
        auto *action = new QAction(&window);
        window.addAction(action);
        const ActionIdentifier id = entry.first;
        connect(action, &QAction::triggered, this, [&triggered, id] { triggered = id; });
        binder.bind(id, action);
        for (int i = 0; i < 2; ++i)
            assign(id.toString(), texts.at(static_cast<int>(random() % unsigned(texts.size()))));
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto oldHandler = qInstallMessageHandler(ignoreAmbiguity);

    HotkeyAudit::Options options;
    options.everywhere = {File, Window};
    options.together = together;
    const HotkeyAudit audit(*m_store, options);
    using Place = std::pair<QWidget *, std::vector<unsigned long>>; // with the contexts of the part
    const auto isHeld = [&](const QKeySequence &key, unsigned long context) {
        return std::any_of(texts.begin(), texts.end(), [&](const QString &text) {
            return QKeySequence(text) == key
                   && !m_store->getActionIdFromShortcut(text, context).isEmpty();
        });
    };
    int compared = 0;
    for (const Place &place : {Place{parts[0], {}}, Place{parts[1], {Timeline}},
                               Place{parts[2], together[0]}, Place{parts[2], together[1]}}) {
        const unsigned long mode = place.second.empty() ? 0 : place.second.front();
        for (unsigned long other : {Mesh, Sculpt})
            binder.setContextWidgets(other, other == mode ? std::vector<QWidget *>{parts[2]}
                                                          : std::vector<QWidget *>());
        place.first->setFocus();
        std::vector<unsigned long> counting = place.second;
        counting.insert(counting.end(), {File, Window});
        for (const QString &text : texts) {
            const QKeySequence key(text);
            triggered = {};
            QTest::keyClick(place.first, Qt::Key(key[0] & ~int(Qt::KeyboardModifierMask)),
                            Qt::KeyboardModifiers(key[0] & int(Qt::KeyboardModifierMask)));
            const HotkeyFinding::Outcome *said = saidOf(audit, key, place.second);
            if (said != nullptr)
                QVERIFY2(triggered == said->action, qPrintable(text + triggered.toString()));
            const auto holders = std::count_if(counting.begin(), counting.end(),
                                               [&](auto context) { return isHeld(key, context); });
            QVERIFY2(said != nullptr || holders < 2, qPrintable(text));
            compared += said != nullptr ? 1 : 0;
        }
    }
    qInstallMessageHandler(oldHandler);
    QVERIFY(compared > 5);
}

void HotkeyAuditTest::proposesFreeKeysNearby()
{
    assign(s("1-save"), s("Ctrl+D"));
    assign(s("3-cut"), s("Ctrl+W"));
    HotkeyAudit::Options options;
    options.everywhere = {File};
    const HotkeyAudit audit(*m_store, options);
    // Not Ctrl+D (held everywhere), Ctrl+A, Ctrl+X, Ctrl+Z (text fields), S (types).
    QCOMPARE(audit.nearestFree(s("Ctrl+S"), Timeline, 4),
             list("Ctrl+Shift+S|Ctrl+Alt+S|Ctrl+W|Ctrl+E"));
    QVERIFY(!audit.nearestFree(s("Ctrl+S"), Mesh, 50).contains(s("Ctrl+W")));
    QVERIFY(!audit.nearestFree(s("Ctrl+S"), File, 50).contains(s("Ctrl+W")));
    QCOMPARE(audit.nearestFree(s("nonsense"), Mesh, 5), QStringList());
}

/// Every key of the table that is said to be of text fields is taken by one of them.
void HotkeyAuditTest::textFieldsTakeTheirKeys()
{
    QLineEdit line;
    QPlainTextEdit text;
    for (const HotkeyReservation &reservation : HotkeyReservation::all()) {
        if (reservation.system != HotkeyReservation::System::TextFields)
            continue;
        const int key = QKeySequence(reservation.hotkey)[0];
        bool isTaken = false;
        for (QWidget *field : {static_cast<QWidget *>(&line), static_cast<QWidget *>(&text)}) {
            QKeyEvent press(QEvent::ShortcutOverride, key & ~int(Qt::KeyboardModifierMask),
                            Qt::KeyboardModifiers(key & int(Qt::KeyboardModifierMask)));
            press.ignore();
            QCoreApplication::sendEvent(field, &press);
            isTaken = isTaken || press.isAccepted();
        }
        QVERIFY2(isTaken, qPrintable(reservation.hotkey));
    }
}

QTEST_MAIN(HotkeyAuditTest)
#include "tst_HotkeyAudit.moc"
