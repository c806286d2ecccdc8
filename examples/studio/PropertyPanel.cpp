#include "PropertyPanel.h"

#include <QGridLayout>
#include <QScopedValueRollback>

namespace Studio {

namespace {

QVector3D *fieldOf(Transform &transform, std::size_t row)
{
    return row == 0 ? &transform.position : row == 1 ? &transform.rotation : &transform.scale;
}

} // namespace

PropertyPanel::PropertyPanel(Document *document, QWidget *parent)
    : QWidget(parent),
      m_document(document),
      m_name(new QLabel(this)),
      m_numbers(),
      m_counts(new QLabel(this))
{
    setObjectName(QStringLiteral("propertyPanel"));
    m_name->setTextFormat(Qt::PlainText);
    m_counts->setTextFormat(Qt::PlainText);
    auto *layout = new QGridLayout(this);
    layout->setSpacing(4);
    layout->addWidget(m_name, 0, 0, 1, 4);
    const QString rows[] = {tr("Position"), tr("Rotation"), tr("Scale")};
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        const int row = static_cast<int>(i) / 3;
        const int axis = static_cast<int>(i) % 3;
        if (axis == 0)
            layout->addWidget(new QLabel(rows[row], this), row + 1, 0);
        auto *box = new QDoubleSpinBox(this);
        box->setObjectName(QStringLiteral("number%1").arg(i));
        box->setRange(-10000, 10000);
        box->setSingleStep(row == 1 ? 5 : 0.1);
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setMinimumWidth(52);
        layout->addWidget(box, row + 1, axis + 1);
        connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &PropertyPanel::take);
        m_numbers[i] = box;
    }
    layout->addWidget(m_counts, 4, 0, 1, 4);
    layout->setRowStretch(5, 1);
    connect(document, &Document::changed, this, &PropertyPanel::show);
    show();
}

void PropertyPanel::editNumbers()
{
    m_numbers[0]->setFocus();
    m_numbers[0]->selectAll();
}

void PropertyPanel::show()
{
    const QScopedValueRollback<bool> guard(m_isShowing, true);
    const SceneObject *active = m_document->scene().active();
    m_name->setText(active != nullptr ? active->name : tr("Nothing selected"));
    Transform transform = active != nullptr ? active->transform : Transform();
    for (std::size_t i = 0; i < m_numbers.size(); ++i) {
        m_numbers[i]->setEnabled(active != nullptr);
        const auto value = (*fieldOf(transform, i / 3))[static_cast<int>(i % 3)];
        m_numbers[i]->setValue(static_cast<double>(value));
    }
    m_counts->setText(active == nullptr
                              ? QString()
                              : tr("%1 vertices, %2 faces, %3 keys")
                                        .arg(QString::number(active->mesh.vertices.size()),
                                             QString::number(active->mesh.faces.size()),
                                             QString::number(active->keys.size())));
}

void PropertyPanel::take()
{
    if (m_isShowing)
        return;
    const int id = m_document->scene().activeId;
    m_document->edit(tr("Numeric Transform"), [this, id](Scene &scene) {
        SceneObject *object = scene.find(id);
        if (object == nullptr)
            return;
        for (std::size_t i = 0; i < m_numbers.size(); ++i) {
            (*fieldOf(object->transform, i / 3))[static_cast<int>(i % 3)] =
                    static_cast<float>(m_numbers[i]->value());
        }
    });
}

} // namespace Studio
