#pragma once

#include "KeyboardLayout.h"

#include <QWidget>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;
class QToolButton;

namespace CUI {

/// The row above a keyboard: which groups, modifiers and shape are shown.
class KeyboardChoosers : public QWidget
{
    Q_OBJECT

public:
    explicit KeyboardChoosers(QWidget *parent = nullptr);

    const std::vector<unsigned long> &contexts() const { return m_contexts; }
    /// Does not emit contextsChosen().
    void setContexts(const std::vector<unsigned long> &contexts);
    /// Checks the modifiers, chosen or held. Emits nothing.
    void showModifiers(Qt::KeyboardModifiers modifiers);
    /// The shape in place of that of the layout; nothing for that one.
    std::optional<KeyboardLayout::Shape> shape() const;
    /// Sets every text in the current language.
    void retranslate();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void contextsChosen();
    void modifierToggled(Qt::KeyboardModifier modifier);
    void shapeChosen();

private:
    void buildModifiers();
    void buildShapes();
    void fillMenu();
    void choose(unsigned long contextId, bool isChosen);
    void showContexts();

    std::vector<unsigned long> m_contexts;
    QLabel *m_contextsLabel;
    QToolButton *m_contextsButton;
    QMenu *m_menu;
    QLabel *m_modifiersLabel;
    std::vector<std::pair<Qt::KeyboardModifier, QCheckBox *>> m_modifiers;
    QLabel *m_shapeLabel;
    QComboBox *m_shapes;
};

} // namespace CUI
