#include "Screens.h"

#ifdef CUI_HAS_SHORTCUTS_EDITOR

#    include <KActionCollection>
#    include <KShortcutsEditor>

#    include <QAction>
#    include <QCoreApplication>
#    include <QMetaObject>
#    include <QTreeWidget>

#    include <vector>

namespace CUI::Bench {

namespace {

/// The actions of the stage, by context.
std::vector<KActionCollection *> makeCollections()
{
    std::vector<KActionCollection *> collections;
    for (int i = 0; i < contextCount; ++i)
        collections.push_back(new KActionCollection(QCoreApplication::instance()));
    for (int i = 0; i < usualCount; ++i) {
        KActionCollection &collection = *collections[contextOf(i)];
        QAction *item = collection.addAction(actionAt(i).actionId);
        item->setText(nameOf(i));
        QList<QKeySequence> shortcuts;
        for (const QString &hotkey : hotkeysOf(i))
            shortcuts << QKeySequence(hotkey, QKeySequence::PortableText);
        collection.setDefaultShortcuts(item, shortcuts);
    }
    return collections;
}

class ShortcutsEditor : public Searcher
{
public:
    explicit ShortcutsEditor(const std::vector<KActionCollection *> &collections)
        : m_editor(static_cast<QWidget *>(nullptr))
    {
        for (std::size_t i = 0; i < collections.size(); ++i)
            m_editor.addCollection(collections[i], QStringLiteral("View %1").arg(i));
        m_line = m_editor.findChild<QLineEdit *>();
        m_tree = m_editor.findChild<QTreeWidget *>();
        m_editor.resize(800, 600);
        m_editor.show();
        m_watch = std::make_unique<PaintWatch>(*m_tree->viewport());
        m_watch->wait();
    }

    void type(const QString &text) override
    {
        // What its timer would call.
        if (!QMetaObject::invokeMethod(m_line, "updateSearch", Q_ARG(QString, text)))
            qFatal("The shortcut editor cannot be searched.");
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
    KShortcutsEditor m_editor;
    QLineEdit *m_line;
    QTreeWidget *m_tree;
    std::unique_ptr<PaintWatch> m_watch;
};

} // namespace

std::unique_ptr<Searcher> openRival()
{
    static const auto collections = makeCollections();
    return std::make_unique<ShortcutsEditor>(collections);
}

} // namespace CUI::Bench

#else

std::unique_ptr<CUI::Bench::Searcher> CUI::Bench::openRival()
{
    return nullptr;
}

#endif
