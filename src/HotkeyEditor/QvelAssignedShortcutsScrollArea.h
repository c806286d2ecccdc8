#pragma once

#include <QScrollArea>

namespace CUI {

/// The scrolled list of the hotkeys that the selected action has. A class of its own, so that style
/// sheets can name it.
class QvelAssignedShortcutsScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    using QScrollArea::QScrollArea;
};

} // namespace CUI
