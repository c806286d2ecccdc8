#include "KeyText.h"
#include "MeshEditing.h"
#include "Primitives.h"

#include <QtTest>

using namespace Studio;

namespace {

QString s(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class StudioPartsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keyTexts_data();
    void keyTexts();
    void meshStaysClosed_data();
    void meshStaysClosed();
};

void StudioPartsTest::keyTexts_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QStringList>("texts");
    const int shift = Qt::ShiftModifier;
    const int keypad = Qt::KeypadModifier;
    QTest::newRow("letter") << int{Qt::Key_A} << 0 << QStringList{s("A")};
    QTest::newRow("bracket") << int{Qt::Key_BraceLeft} << shift
                             << QStringList{s("Shift+{"), s("Shift+["), s("{")};
    QTest::newRow("plus") << int{Qt::Key_Plus} << shift
                          << QStringList{s("Shift++"), s("Shift+="), s("+")};
    QTest::newRow("back tab") << int{Qt::Key_Backtab} << shift
                              << QStringList{s("Shift+Tab"), s("Shift+Backtab")};
    QTest::newRow("return") << int{Qt::Key_Return} << 0 << QStringList{s("Return"), s("Enter")};
    QTest::newRow("keypad") << int{Qt::Key_Plus} << keypad << QStringList{s("Num++"), s("+")};
    QTest::newRow("modifier") << int{Qt::Key_Control} << int{Qt::ControlModifier} << QStringList();
}

void StudioPartsTest::keyTexts()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QStringList, texts);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(KeyText::candidates(event), texts);
}

void StudioPartsTest::meshStaysClosed_data()
{
    QTest::addColumn<int>("primitive");
    for (Primitive primitive : allPrimitives) {
        if (primitive != Primitive::Plane)
            QTest::newRow(qPrintable(primitiveName(primitive))) << static_cast<int>(primitive);
    }
}

// Each edge of a closed surface belongs to two faces that go along it in opposite directions.
void StudioPartsTest::meshStaysClosed()
{
    QFETCH(int, primitive);
    const auto isClosed = [](const Mesh &mesh) {
        QMap<QPair<int, int>, int> edges;
        for (const Mesh::Face &face : mesh.faces) {
            for (int i = 0; i < face.corners.size(); ++i)
                ++edges[{face.corners.at(i), face.corners.at((i + 1) % face.corners.size())}];
        }
        return std::all_of(edges.keyBegin(), edges.keyEnd(), [&edges](const auto &edge) {
            return edges.value(edge) == 1 && edges.value({edge.second, edge.first}) == 1;
        });
    };
    Mesh mesh = makePrimitive(static_cast<Primitive>(primitive));
    QVERIFY(isClosed(mesh));
    mesh.selected = {1, 2};
    MeshEditing::extrudeRegion(mesh, 0.3F);
    QVERIFY(isClosed(mesh));
    MeshEditing::extrudeIndividual(mesh, 0.3F);
    QVERIFY(isClosed(mesh));
    MeshEditing::inset(mesh, 0.3F);
    QVERIFY(isClosed(mesh));
    MeshEditing::triangulate(mesh);
    QVERIFY(isClosed(mesh));
    MeshEditing::poke(mesh, 0.1F);
    QVERIFY(isClosed(mesh));
    MeshEditing::selectAll(mesh);
    MeshEditing::subdivide(mesh);
    QVERIFY(isClosed(mesh));
    MeshEditing::flipNormals(mesh);
    QVERIFY(isClosed(mesh));
}

QTEST_GUILESS_MAIN(StudioPartsTest)
#include "tst_StudioParts.moc"
