#include "KeyboardGeometry.h"

#include "KeyCodes.h"

#include <initializer_list>

namespace CUI::KeyboardGeometry {

namespace {

using Shape = KeyboardLayout::Shape;

// The left edges of the two blocks at the right, and where the rows below the function keys begin.
constexpr double navigation = 15.25;
constexpr double numbers = 18.5;
constexpr double firstRow = 1.5;

/// Sets keys down from left to right.
class Row
{
public:
    Row(std::vector<Place> &places, double row, double x)
        : m_places(places), m_x(x), m_y(row == 0 ? 0 : firstRow + row - 1)
    {
    }

    Row &key(int code, double keyWidth = 1, double keyHeight = 1)
    {
        m_places.push_back({code, {QRectF(m_x, m_y, keyWidth, keyHeight)}});
        return skip(keyWidth);
    }
    Row &keys(std::initializer_list<int> codes, double keyWidth = 1)
    {
        for (const int code : codes)
            key(code, keyWidth);
        return *this;
    }
    Row &run(int first, int last)
    {
        for (int code = first; code <= last; ++code)
            key(code);
        return *this;
    }
    Row &skip(double distance)
    {
        m_x += distance;
        return *this;
    }

private:
    std::vector<Place> &m_places;
    double m_x;
    double m_y;
};

void placeTypingRows(std::vector<Place> &places, Shape shape, bool hasKeyBesideRightShift)
{
    const bool isAnsi = shape == Shape::Ansi;
    const bool isJis = shape == Shape::Jis;
    Row digits(places, 1, 0);
    digits.key(41).run(2, 13);
    if (isJis)
        digits.key(KeyCodes::yen);
    digits.key(KeyCodes::backspace, isJis ? 1 : 2);

    Row upper(places, 2, 0);
    upper.key(KeyCodes::tab, 1.5).run(16, 27);
    if (isAnsi) {
        upper.key(43, 1.5);
    } else {
        upper.key(KeyCodes::enter, 1.5);
        const QRectF top = places.back().parts.first();
        places.back().parts.append(QRectF(top.x() + 0.25, top.y(), 1.25, 2));
    }

    Row home(places, 3, 0);
    home.key(58, 1.75).run(30, 40);
    if (isAnsi)
        home.key(KeyCodes::enter, 2.25);
    else
        home.key(43);

    Row lower(places, 4, 0);
    lower.key(KeyCodes::leftShift, shape == Shape::Iso ? 1.25 : 2.25);
    if (shape == Shape::Iso)
        lower.key(KeyCodes::besideLeftShift);
    lower.run(44, 53);
    const bool isShort = isJis || (hasKeyBesideRightShift && !isAnsi);
    if (isShort)
        lower.key(KeyCodes::besideRightShift);
    lower.key(KeyCodes::rightShift, isShort ? 1.75 : 2.75);
}

void placeBottomRow(std::vector<Place> &places, Shape shape)
{
    Row row(places, 5, 0);
    row.keys({KeyCodes::leftControl, KeyCodes::leftMeta, KeyCodes::leftAlt}, 1.25);
    if (shape == Shape::Jis)
        row.key(94).key(57, 3.5).keys({92, 93});
    else
        row.key(57, 6.25);
    row.keys({KeyCodes::rightAlt, KeyCodes::rightMeta, 127}, 1.25);
    row.key(KeyCodes::rightControl, shape == Shape::Jis ? 1 : 1.25);
}

void placeNavigation(std::vector<Place> &places)
{
    Row(places, 0, navigation).keys({99, 70, 119});
    Row(places, 1, navigation).keys({110, 102, 104});
    Row(places, 2, navigation).keys({111, 107, 109});
    Row(places, 4, navigation + 1).key(103);
    Row(places, 5, navigation).keys({105, 108, 106});
}

void placeKeypad(std::vector<Place> &places)
{
    Row(places, 1, numbers).keys({69, 98, 55, 74});
    Row(places, 2, numbers).keys({71, 72, 73}).key(78, 1, 2);
    Row(places, 3, numbers).keys({75, 76, 77});
    Row(places, 4, numbers).keys({79, 80, 81}).key(96, 1, 2);
    Row(places, 5, numbers).key(82, 2).key(KeyCodes::keypadPoint);
}

} // namespace

std::vector<Place> places(Shape shape, bool hasKeyBesideRightShift)
{
    std::vector<Place> all;
    Row(all, 0, 0).key(1).skip(1).run(59, 62).skip(0.5).run(63, 66).skip(0.5).run(67, 68).run(87,
                                                                                              88);
    placeTypingRows(all, shape, hasKeyBesideRightShift);
    placeBottomRow(all, shape);
    placeNavigation(all);
    placeKeypad(all);
    return all;
}

} // namespace CUI::KeyboardGeometry
