#include "BrowsingRival.h"

#ifdef CUI_HAS_SHORTCUTS_EDITOR

#    include "Host.h"
#    include "Rows.h"

#    include <KActionCollection>
#    include <KShortcutsEditor>

#    include <QAction>
#    include <QLineEdit>
#    include <QMetaObject>
#    include <QTreeWidget>

#    include <vector>

namespace CUI::Bench {

namespace {

class ShortcutsEditor : public Searcher
{
public:
    explicit ShortcutsEditor(int actionCount)
    {
        for (int i = 0; i < contextCount; ++i)
            m_collections.push_back(
                    std::make_unique<KActionCollection>(static_cast<QObject *>(nullptr)));
        for (int i = 0; i < actionCount; ++i)
            add(i);
        m_openingSeconds = busySecondsOf([this] { open(); });
    }

    double openingSeconds() const { return m_openingSeconds; }

    void open()
    {
        m_editor = std::make_unique<KShortcutsEditor>(static_cast<QWidget *>(nullptr));
        for (int i = 0; i < contextCount; ++i)
            m_editor->addCollection(m_collections[static_cast<std::size_t>(i)].get(),
                                    QStringLiteral("View %1").arg(i));
        m_line = m_editor->findChild<QLineEdit *>();
        m_tree = m_editor->findChild<QTreeWidget *>();
        if (m_line == nullptr || m_tree == nullptr)
            qFatal("The shortcut editor has no search line or no tree.");
        m_editor->resize(800, 600);
        m_editor->show();
        m_watch = std::make_unique<PaintWatch>(*m_tree);
        m_watch->wait();
    }

    void type(const QString &text) override
    {
        // What its timer would call.
        if (!QMetaObject::invokeMethod(m_line, "updateSearch", Q_ARG(QString, text)))
            qFatal("The shortcut editor cannot be searched.");
        m_tree->viewport()->update(); // it does not paint when nothing has changed
        m_watch->wait();
    }

    int listedCount() const override
    {
        int count = 0;
        for (QTreeWidgetItemIterator item(m_tree, QTreeWidgetItemIterator::NotHidden); *item;
             ++item)
            count += (*item)->childCount() == 0 ? 1 : 0;
        return count;
    }

private:
    void add(int action)
    {
        KActionCollection &collection = *m_collections[static_cast<std::size_t>(contextOf(action))];
        QAction *item = collection.addAction(actionAt(action).actionId);
        item->setText(nameOf(action));
        QList<QKeySequence> shortcuts;
        for (const QString &hotkey : hotkeysOf(action))
            shortcuts << QKeySequence(hotkey, QKeySequence::PortableText);
        collection.setDefaultShortcuts(item, shortcuts);
    }

    std::vector<std::unique_ptr<KActionCollection>> m_collections;
    std::unique_ptr<KShortcutsEditor> m_editor;
    QLineEdit *m_line;
    QTreeWidget *m_tree;
    std::unique_ptr<PaintWatch> m_watch;
    double m_openingSeconds = 0.0;
};

} // namespace

bool hasShortcutsEditor()
{
    return true;
}

std::unique_ptr<Searcher> makeShortcutsEditor(int actionCount)
{
    return std::make_unique<ShortcutsEditor>(actionCount);
}

double secondsToOpenShortcutsEditor(int actionCount)
{
    return ShortcutsEditor(actionCount).openingSeconds();
}

} // namespace CUI::Bench

#else

namespace CUI::Bench {

bool hasShortcutsEditor()
{
    return false;
}

std::unique_ptr<Searcher> makeShortcutsEditor(int)
{
    return nullptr;
}

double secondsToOpenShortcutsEditor(int)
{
    return 0.0;
}

} // namespace CUI::Bench

#endif
