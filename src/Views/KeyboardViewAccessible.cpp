#include "KeyboardViewAccessible.h"

#include "KeyboardView.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <QWindow>

#include <map>

namespace CUI::KeyboardViewAccessible {

namespace {

class KeyAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    KeyAccessible(KeyboardView *view, int index) : m_view(view), m_index(index) { }

    bool isValid() const override
    {
        return m_view != nullptr && m_index < static_cast<int>(m_view->keyboard().keys().size());
    }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QWindow *window() const override { return m_view->window()->windowHandle(); }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        switch (kind) {
        case QAccessible::Name:
            return key().name;
        case QAccessible::Description:
            return m_view->keyboard().describe(key());
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override { }

    QRect rect() const override
    {
        const QRect rect = m_view->rectOf(m_index);
        return {m_view->mapToGlobal(rect.topLeft()), rect.size()};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = !m_view->isVisible();
        state.focusable = true;
        state.focused = m_view->hasFocus() && m_view->currentKey() == m_index;
        state.disabled = key().hotkey.isEmpty() && key().modifier == Qt::NoModifier;
        state.checkable = key().modifier != Qt::NoModifier;
        state.checked = key().isHeld;
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                       ? static_cast<QAccessibleActionInterface *>(this)
                       : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString &name) override
    {
        if (name == setFocusAction())
            m_view->setFocus();
        if (name == setFocusAction() || name == pressAction())
            m_view->setCurrentKey(m_index);
        if (name == pressAction())
            m_view->activateKey(m_index);
    }
    QStringList keyBindingsForAction(const QString & /*name*/) const override { return {}; }

private:
    const HotkeyKeyboard::Key &key() const
    {
        return m_view->keyboard().keys().at(static_cast<std::size_t>(m_index));
    }

    QPointer<KeyboardView> m_view;
    int m_index;
};

class ViewAccessible : public QAccessibleWidget
{
public:
    explicit ViewAccessible(KeyboardView *view) : QAccessibleWidget(view, QAccessible::Grouping) { }
    ~ViewAccessible() override
    {
        for (const auto &[index, id] : m_children)
            QAccessible::deleteAccessibleInterface(id);
    }
    Q_DISABLE_COPY(ViewAccessible)

    int childCount() const override { return static_cast<int>(view()->keyboard().keys().size()); }

    QAccessibleInterface *child(int index) const override
    {
        if (index < 0 || index >= childCount())
            return nullptr;
        const auto known = m_children.find(index);
        if (known != m_children.end())
            return QAccessible::accessibleInterface(known->second);
        auto *made = new KeyAccessible(view(), index);
        m_children.emplace(index, QAccessible::registerAccessibleInterface(made));
        return made;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        for (const auto &[index, id] : m_children) {
            if (QAccessible::accessibleInterface(id) == child)
                return index;
        }
        return -1;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        return child(view()->keyAt(view()->mapFromGlobal(QPoint(x, y))));
    }

    QAccessibleInterface *focusChild() const override
    {
        return view()->hasFocus() ? child(view()->currentKey()) : nullptr;
    }

private:
    KeyboardView *view() const { return qobject_cast<KeyboardView *>(object()); }

    mutable std::map<int, QAccessible::Id> m_children;
};

QAccessibleInterface *make(const QString & /*className*/, QObject *object)
{
    auto *view = qobject_cast<KeyboardView *>(object);
    return view != nullptr ? new ViewAccessible(view) : nullptr;
}

} // namespace

void install()
{
    QAccessible::installFactory(make); // a factory is installed once, however often
}

} // namespace CUI::KeyboardViewAccessible
