#pragma once

#include "Document.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <array>

namespace Studio {

/// The name and the transform of the active object, to be edited.
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPanel(Document *document, QWidget *parent = nullptr);

    /// Puts the keyboard focus on the first number.
    void editNumbers();

    QSize sizeHint() const override { return {300, 260}; }

private:
    void show();
    void take();

    Document *m_document;
    QLabel *m_name;
    std::array<QDoubleSpinBox *, 9> m_numbers; ///< position, rotation, scale
    QLabel *m_counts;
    bool m_isShowing = false;
};

} // namespace Studio
