#include "NearbyKeys.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace CUI::NearbyKeys {

namespace {

/// A key, and its place in widths of a key.
struct Place {
    int key;
    double x;
    double y;
};

struct Run {
    double x;
    double y;
    const char *characters;
};

constexpr Run runs[] = {
        {0, 1, "`1234567890-="},
        {1.5, 2, "QWERTYUIOP[]\\"},
        {1.75, 3, "ASDFGHJKL;'"},
        {2.25, 4, "ZXCVBNM,./"},
};

constexpr int keypad = Qt::KeypadModifier;
constexpr int modifiers[] = {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier};
constexpr int firstNamedKey = 0x01000000;

constexpr Place namedKeys[] = {
        {Qt::Key_Space, 5, 5},
        {Qt::Key_Insert, 15, 1},
        {Qt::Key_Home, 16, 1},
        {Qt::Key_PageUp, 17, 1},
        {Qt::Key_Delete, 15, 2},
        {Qt::Key_End, 16, 2},
        {Qt::Key_PageDown, 17, 2},
        {Qt::Key_Up, 16, 4},
        {Qt::Key_Left, 15, 5},
        {Qt::Key_Down, 16, 5},
        {Qt::Key_Right, 17, 5},
        {keypad | Qt::Key_Slash, 19, 1},
        {keypad | Qt::Key_Asterisk, 20, 1},
        {keypad | Qt::Key_Minus, 21, 1},
        {keypad | Qt::Key_7, 18, 2},
        {keypad | Qt::Key_8, 19, 2},
        {keypad | Qt::Key_9, 20, 2},
        {keypad | Qt::Key_Plus, 21, 2},
        {keypad | Qt::Key_4, 18, 3},
        {keypad | Qt::Key_5, 19, 3},
        {keypad | Qt::Key_6, 20, 3},
        {keypad | Qt::Key_1, 18, 4},
        {keypad | Qt::Key_2, 19, 4},
        {keypad | Qt::Key_3, 20, 4},
        {keypad | Qt::Key_0, 18, 5},
        {keypad | Qt::Key_Period, 20, 5},
};

std::vector<Place> readPlaces()
{
    std::vector<Place> places(std::begin(namedKeys), std::end(namedKeys));
    for (const Run &run : runs) {
        for (int i = 0; run.characters[i] != '\0'; ++i)
            places.push_back({run.characters[i], run.x + i, run.y});
    }
    for (int key = Qt::Key_F2; key <= Qt::Key_F12; ++key)
        places.push_back({key, key - double{Qt::Key_F1} + 1.5, 0});
    return places;
}

const std::vector<Place> &places()
{
    static const std::vector<Place> all = readPlaces();
    return all;
}

int keyOf(int combination)
{
    return combination & (~static_cast<int>(Qt::KeyboardModifierMask) | keypad);
}

/// How many of the modifiers only one of the two has.
int differentModifiers(int a, int b)
{
    return static_cast<int>(
            std::count_if(std::begin(modifiers), std::end(modifiers),
                          [a, b](int modifier) { return ((a ^ b) & modifier) != 0; }));
}

bool isCommand(int combination)
{
    return (combination & int{Qt::ControlModifier | Qt::AltModifier}) != 0;
}

struct Candidate {
    double distance;
    int combination;
};

void addWithModifiers(std::vector<Candidate> &candidates, int key, double distance, int wanted)
{
    for (int set = 0; set < 8; ++set) {
        int combination = key;
        for (int i = 0; i < 3; ++i)
            combination |= (set >> i & 1) != 0 ? modifiers[i] : 0;
        const bool types = key < firstNamedKey && !isCommand(combination);
        if (combination == wanted || (types && isCommand(wanted)))
            continue;
        candidates.push_back({distance + differentModifiers(combination, wanted), combination});
    }
}

} // namespace

std::vector<int> similarTo(int combination)
{
    const int key = keyOf(combination);
    const auto place = std::find_if(places().begin(), places().end(),
                                    [key](const Place &p) { return p.key == key; });
    std::vector<Candidate> candidates;
    if (place == places().end()) {
        if (key > Qt::Key_Space && key < firstNamedKey)
            addWithModifiers(candidates, key, 0, combination);
    } else {
        for (const Place &other : places())
            addWithModifiers(candidates, other.key,
                             std::hypot(other.x - place->x, other.y - place->y), combination);
    }
    std::sort(candidates.begin(), candidates.end(), [](const Candidate &a, const Candidate &b) {
        return a.distance != b.distance ? a.distance < b.distance : a.combination < b.combination;
    });
    std::vector<int> combinations;
    combinations.reserve(candidates.size());
    for (const Candidate &candidate : candidates)
        combinations.push_back(candidate.combination);
    return combinations;
}

} // namespace CUI::NearbyKeys
