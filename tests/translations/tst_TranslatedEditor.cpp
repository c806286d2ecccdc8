#include "EditorHarness.h"

#include "HostTranslations.h"

#include <VelUtil.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QRawFont>
#include <QStyle>
#include <QTextLayout>
#include <QToolButton>
#include <QtTest>

#include <algorithm>

using VelSDK::QvelTranslationLoader;

namespace {

/// False when a character would be shown as an empty box.
bool fontsHave(const QString &text)
{
    QTextLayout layout(text);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::none_of(runs.begin(), runs.end(),
                        [](const QGlyphRun &run) { return run.glyphIndexes().contains(0); });
}

int widest(const QWidget &widget, const QStringList &texts)
{
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, widget.fontMetrics().horizontalAdvance(text));
    return width;
}

/// The size that shows the texts of a widget as they are; an empty one for a widget that has none
/// of its own.
QSize neededSize(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        if (label->wordWrap())
            return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
        return label->sizeHint();
    }
    if (qobject_cast<const QAbstractButton *>(&widget) != nullptr)
        return widget.sizeHint();
    if (qobject_cast<const QGroupBox *>(&widget) != nullptr)
        return widget.minimumSizeHint();
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        const int frame = 2 * field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        constexpr int margins = 4;
        const QString text = field->text().isEmpty() ? field->placeholderText() : field->text();
        return {widest(widget, {text}) + frame + margins, widget.minimumSizeHint().height()};
    }
    if (const auto *comboBox = qobject_cast<const QComboBox *>(&widget)) {
        const QSize text(widest(widget, EditorHarness::textsOf(comboBox->model())),
                         widget.fontMetrics().height());
        QStyleOptionComboBox option;
        option.initFrom(comboBox);
        const QSize field = comboBox->style()
                                    ->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField, comboBox)
                                    .size();
        return comboBox->size() - field + text;
    }
    return {};
}

/// The part of a widget that its ancestors show. What a list scrolls counts as shown.
QRect shownPart(const QWidget &widget)
{
    QRect part = widget.rect();
    QPoint offset;
    for (const QWidget *child = &widget; !child->isWindow(); child = child->parentWidget()) {
        offset += child->pos();
        const QWidget *parent = child->parentWidget();
        QRect frame = parent->rect().translated(-offset);
        if (parent->objectName() == s("qt_scrollarea_viewport")) {
            frame.setTop(part.top());
            frame.setBottom(part.bottom());
        }
        part &= frame;
    }
    return part;
}

QString textOf(const QWidget &widget)
{
    for (const char *property : {"text", "title", "placeholderText", "currentText"}) {
        const QString text = widget.property(property).toString();
        if (!text.isEmpty())
            return text;
    }
    return {};
}

/// The visible widgets that do not show all of their text.
QStringList clippedTexts(const QWidget &editor)
{
    QStringList clipped;
    for (const QWidget *widget : editor.findChildren<QWidget *>()) {
        const QSize needed = neededSize(*widget);
        const QSize shown = shownPart(*widget).size();
        if (!widget->isVisible() || !needed.isValid() || needed == needed.boundedTo(shown))
            continue;
        QString complaint;
        QDebug(&complaint) << widget->objectName() << textOf(*widget) << needed << "in" << shown;
        clipped << complaint;
    }
    return clipped;
}

/// Every text that a user can read in the editor.
QStringList textsIn(const QWidget &editor)
{
    QStringList texts{editor.windowTitle()};
    for (const QWidget *widget : editor.findChildren<QWidget *>()) {
        QStringList own{textOf(*widget), widget->toolTip(), widget->accessibleName()};
        if (const auto *comboBox = qobject_cast<const QComboBox *>(widget))
            own << EditorHarness::textsOf(comboBox->model());
        if (const auto *tree = qobject_cast<const QTreeView *>(widget)) {
            for (int column = 0; column < tree->model()->columnCount(); ++column)
                own << tree->model()->headerData(column, Qt::Horizontal).toString();
        }
        for (const QAction *action : widget->actions())
            own << action->text();
        if (!own.join(QString()).isEmpty())
            texts << widget->objectName() + s(": ") + own.join(s(" | "));
    }
    texts.sort(); // rows of hotkeys are made anew
    return texts;
}

} // namespace

/// The hotkey editor in every language of the library.
class TestTranslatedEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Host::installTranslations(); }
    void init();
    void cleanup();
    void showsItsTextsInFull_data();
    void showsItsTextsInFull();
    void followsTheLanguage();

private:
    void compareFits(const char *state);

    QFont m_font = QApplication::font();
    std::unique_ptr<EditorHarness> m;
};

void TestTranslatedEditor::init()
{
    m = std::make_unique<EditorHarness>();
    m->host.write(s("shipped/keyset.hsx"),
                  "<VelHotkeyTransformations Description='Velstudio Default Keyset'/>");
}

void TestTranslatedEditor::cleanup()
{
    m.reset();
    QvelTranslationLoader::setLocale(s("en"));
    VelSDK::SetUIScaleFactor(0);
    QApplication::setFont(m_font);
}

void TestTranslatedEditor::showsItsTextsInFull_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<double>("scale");
    for (const char *locale : {"en", "de-DE", "fr-FR", "ja-JP", "ko-KR", "pt-BR", "zh-CN"}) {
        for (const double scale : {1.0, 1.5})
            QTest::addRow("%s at %.0f %%", locale, 100 * scale) << s(locale) << scale;
    }
}

void TestTranslatedEditor::showsItsTextsInFull()
{
    QFETCH(QString, locale);
    QFETCH(double, scale);
    QvelTranslationLoader::setLocale(locale);
    VelSDK::SetUIScaleFactor(scale);
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * scale);
    QApplication::setFont(font);

    m->open();
    if (!fontsHave(QCoreApplication::translate("QvelShortcutsWidget", "Hotkeys")))
        QSKIP("no font of this system has the characters");
    compareFits("nothing selected");
    m->select(boxes);
    compareFits("an action selected that is active while its hotkey is held");
    m->select(box);
    compareFits("an action selected");
    m->press(Qt::Key_S);
    QVERIFY(m->shows("HotkeyEditor_alreadyAssignedLabel"));
    compareFits("conflict");
    m->click("HotkeyEditor_removeShortcutBtn");
    QVERIFY(m->shows("HotkeyEditor_removedFromLabel"));
    compareFits("removed from the other action");
    m->clickRow("B");
    compareFits("removed from the action");
}

// They are whole sentences, unlike those of the sources.
void TestTranslatedEditor::compareFits(const char *state)
{
    QCoreApplication::processEvents();
    const QStringList clipped = clippedTexts(*m->editor);
    QVERIFY2(clipped.isEmpty(), qPrintable(s("%1: %2").arg(s(state), clipped.join(s(", ")))));
}

void TestTranslatedEditor::followsTheLanguage()
{
    m->open();
    m->select(box);
    QStringList before = textsIn(*m->editor);
    for (const char *locale : {"de-DE", "ja-JP", "en"}) {
        QvelTranslationLoader::setLocale(s(locale));
        QCoreApplication::processEvents();
        const QStringList followed = textsIn(*m->editor);
        QVERIFY(followed != before);
        before = followed;

        CUI::QvelActionItemModel model(&m->manager);
        CUI::QvelShortcutsWidget fresh(&model, &m->manager);
        fresh.show();
        fresh.setCurrentAction(box, false);
        QCOMPARE(followed, textsIn(fresh));
    }
}

QTEST_MAIN(TestTranslatedEditor)
#include "tst_TranslatedEditor.moc"
