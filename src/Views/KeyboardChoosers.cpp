#include "KeyboardChoosers.h"

#include "EditorText.h"
#include "HotkeyKeyboard.h"
#include "ICuiActionManager.h"
#include "VelActionContext.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace CUI {

namespace {

using Shape = KeyboardLayout::Shape;

QString allGroups()
{
    return QCoreApplication::translate("QvelCustomizeUiDialog", "All Groups");
}

QString nameOf(unsigned long contextId)
{
    const ICuiActionManager *registry = ICuiActionManager::get();
    const VelActionContext *context =
            registry != nullptr ? registry->getActionContext(contextId) : nullptr;
    return context != nullptr ? context->name() : QString();
}

/// The registered contexts by their names.
std::vector<unsigned long> registeredContexts()
{
    std::vector<unsigned long> ids;
    if (const ICuiActionManager *registry = ICuiActionManager::get()) {
        for (const auto &entry : registry->actionContexts())
            ids.push_back(entry.first);
    }
    std::sort(ids.begin(), ids.end(), [](unsigned long a, unsigned long b) {
        const int order = nameOf(a).localeAwareCompare(nameOf(b));
        return order != 0 ? order < 0 : a < b;
    });
    return ids;
}

} // namespace

KeyboardChoosers::KeyboardChoosers(QWidget *parent)
    : QWidget(parent),
      m_contextsLabel(new QLabel),
      m_contextsButton(new QToolButton),
      m_menu(new QMenu(this)),
      m_modifiersLabel(new QLabel),
      m_shapeLabel(new QLabel),
      m_shapes(new QComboBox)
{
    m_contextsButton->setObjectName(QStringLiteral("QvelKeyboardWidget_contexts"));
    m_contextsButton->setPopupMode(QToolButton::InstantPopup);
    m_contextsButton->setMenu(m_menu);
    m_contextsButton->setFocusPolicy(Qt::StrongFocus);
    m_menu->installEventFilter(this);
    connect(m_menu, &QMenu::aboutToShow, this, &KeyboardChoosers::fillMenu);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_contextsLabel);
    row->addWidget(m_contextsButton);
    row->addWidget(m_modifiersLabel);
    buildModifiers();
    row->addStretch();
    row->addWidget(m_shapeLabel);
    buildShapes();
    retranslate();
}

void KeyboardChoosers::buildModifiers()
{
    for (const Qt::KeyboardModifier modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier}) {
        // A check mark is clear in every palette, other than a pressed tool button.
        auto *box = new QCheckBox;
        box->setObjectName(QStringLiteral("QvelKeyboardWidget_modifier%1").arg(modifier, 0, 16));
        connect(box, &QCheckBox::clicked, this,
                [this, modifier] { Q_EMIT modifierToggled(modifier); });
        layout()->addWidget(box);
        m_modifiers.emplace_back(modifier, box);
    }
}

void KeyboardChoosers::buildShapes()
{
    m_shapes->setObjectName(QStringLiteral("QvelKeyboardWidget_shape"));
    m_shapes->addItem(QString());
    m_shapes->addItem(QStringLiteral("ANSI"), static_cast<int>(Shape::Ansi));
    m_shapes->addItem(QStringLiteral("ISO"), static_cast<int>(Shape::Iso));
    m_shapes->addItem(QStringLiteral("JIS"), static_cast<int>(Shape::Jis));
    m_shapes->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_shapes->setMinimumWidth(m_shapes->fontMetrics().averageCharWidth() * 12); // narrow windows
    connect(m_shapes, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &KeyboardChoosers::shapeChosen);
    layout()->addWidget(m_shapes);
}

std::optional<Shape> KeyboardChoosers::shape() const
{
    const QVariant chosen = m_shapes->currentData();
    return chosen.isValid() ? std::optional(static_cast<Shape>(chosen.toInt())) : std::nullopt;
}

void KeyboardChoosers::setContexts(const std::vector<unsigned long> &contexts)
{
    m_contexts = contexts;
    showContexts();
}

void KeyboardChoosers::showContexts()
{
    if (m_contexts.empty())
        m_contextsButton->setText(allGroups());
    else if (m_contexts.size() == 1)
        m_contextsButton->setText(nameOf(m_contexts.front()));
    else
        m_contextsButton->setText(tr("%1 groups").arg(m_contexts.size()));
}

void KeyboardChoosers::fillMenu()
{
    m_menu->clear();
    const auto add = [this](const QString &text, bool isChosen) {
        QAction *action =
                m_menu->addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setCheckable(true);
        action->setChecked(isChosen);
        return action;
    };
    connect(add(allGroups(), m_contexts.empty()), &QAction::triggered, this, [this] {
        setContexts({});
        for (QAction *action : m_menu->actions())
            action->setChecked(action == m_menu->actions().first());
        Q_EMIT contextsChosen();
    });
    m_menu->addSeparator();
    for (const unsigned long id : registeredContexts()) {
        const bool isChosen =
                std::find(m_contexts.begin(), m_contexts.end(), id) != m_contexts.end();
        connect(add(nameOf(id), isChosen), &QAction::triggered, this,
                [this, id](bool checked) { choose(id, checked); });
    }
}

void KeyboardChoosers::choose(unsigned long contextId, bool isChosen)
{
    m_contexts.erase(std::remove(m_contexts.begin(), m_contexts.end(), contextId),
                     m_contexts.end());
    if (isChosen)
        m_contexts.push_back(contextId);
    if (!m_menu->actions().isEmpty())
        m_menu->actions().first()->setChecked(m_contexts.empty());
    showContexts();
    Q_EMIT contextsChosen();
}

/// The menu stays open while several groups are chosen.
bool KeyboardChoosers::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_menu || event->type() != QEvent::MouseButtonRelease)
        return QWidget::eventFilter(watched, event);
    QAction *action = m_menu->actionAt(static_cast<QMouseEvent *>(event)->pos());
    if (action == nullptr || !action->isCheckable())
        return false;
    action->trigger();
    return true;
}

void KeyboardChoosers::showModifiers(Qt::KeyboardModifiers modifiers)
{
    for (const auto &[modifier, box] : m_modifiers)
        box->setChecked((modifiers & modifier) != 0);
}

void KeyboardChoosers::retranslate()
{
    m_contextsLabel->setText(editorText("Group:"));
    m_contextsButton->setAccessibleName(m_contextsLabel->text());
    m_modifiersLabel->setText(tr("Modifiers:"));
    m_shapeLabel->setText(tr("Shape:"));
    m_shapes->setAccessibleName(m_shapeLabel->text());
    m_shapes->setItemText(0, tr("Of the layout in use"));
    for (const auto &[modifier, box] : m_modifiers)
        box->setText(HotkeyKeyboard::textOf(modifier));
    showContexts();
}

} // namespace CUI
