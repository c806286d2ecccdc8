#include "SheetMenu.h"

#include <UiCustomizations/HotkeySheet.h>
#include <UiCustomizations/QvelActionItemModel.h>
#include <UiCustomizations/QvelKeyboardWidget.h>
#include <UiCustomizations/QvelShortcutsWidget.h>
#include <UiCustomizations/QvelSortFilterProxyModel.h>
#include <UiCustomizations/VelAction.h>

#include <QFileDialog>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScreen>

namespace Studio {

SheetMenu::SheetMenu(CUI::QvelShortcutManager *manager, CUI::QvelShortcutsWidget *editor,
                     CUI::QvelKeyboardWidget *keyboard, QWidget *parent)
    : QMenu(tr("&Sheet"), parent),
      m_manager(manager),
      m_editor(editor),
      m_keyboard(keyboard),
      m_withKeyboard(new QAction(tr("With &Keyboard"), this))
{
    addAction(tr("Print Pre&view..."), this, &SheetMenu::showPrintPreview);
    addAction(tr("&Export..."), this, &SheetMenu::exportSheet);
    addSeparator();
    m_withKeyboard->setCheckable(true);
    addAction(m_withKeyboard);
}

CUI::HotkeySheet SheetMenu::sheet() const
{
    const auto *table = m_editor->findChild<CUI::QvelSortFilterProxyModel *>();
    const auto *actions = qobject_cast<const CUI::QvelActionItemModel *>(table->sourceModel());
    std::vector<CUI::ActionIdentifier> listed;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QModelIndex index = table->mapToSource(table->index(row, 0));
        listed.push_back(actions->velActionFromModelIdx(index)->identifier());
    }
    CUI::HotkeySheet sheet(*m_manager, listed);
    if (m_withKeyboard->isChecked())
        sheet.setKeyboard(m_keyboard->keyboard());
    return sheet;
}

void SheetMenu::setWithKeyboard(bool isWith)
{
    m_withKeyboard->setChecked(isWith);
}

void SheetMenu::showPrintPreview()
{
    auto *preview = new QPrintPreviewDialog(window());
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->resize(QSize(900, 720).boundedTo(preview->screen()->availableSize()));
    const CUI::HotkeySheet sheet = this->sheet();
    preview->printer()->setResolution(600);
    preview->printer()->setPageSize(CUI::HotkeySheet::defaultPageSize());
    preview->printer()->setDocName(sheet.title());
    connect(preview, &QPrintPreviewDialog::paintRequested, this,
            [sheet](QPrinter *printer) { sheet.print(*printer); });
    preview->open();
}

void SheetMenu::exportSheet()
{
    QStringList filters = {tr("Web page (*.html)"), tr("PDF document (*.pdf)")};
    if (!m_withKeyboard->isChecked()) // tables have no pictures
        filters << tr("Markdown (*.md)") << tr("Table (*.csv)");
    QString filter;
    QString path = QFileDialog::getSaveFileName(window(), tr("Export Hotkeys"), tr("Hotkeys.html"),
                                                filters.join(QLatin1String(";;")), &filter);
    if (path.isEmpty())
        return;
    if (!CUI::HotkeySheet::formatOf(path))
        path += filter.section(QLatin1Char('*'), 1).remove(QLatin1Char(')'));
    if (!sheet().save(path)) {
        QMessageBox::warning(window(), tr("Export Hotkeys"),
                             tr("%1 cannot be written. The log says why.").arg(path));
    }
}

} // namespace Studio
