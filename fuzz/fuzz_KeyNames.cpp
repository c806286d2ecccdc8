#include "ActionIdentifier.h"
#include "FuzzSupport.h"
#include "KeyNames.h"

#include <QString>

#include <cstring>
#include <functional>

namespace {

using namespace CUI;

void checkIdentifier(const QString &text)
{
    const ActionIdentifier identifier = ActionIdentifier::fromString(text);
    Fuzz::require(text.contains(QLatin1Char('-')) || identifier == ActionIdentifier(),
                  "a text without hyphen is no identifier");
    Fuzz::require(identifier.tableId <= 0xffffffffU, "a table number has 32 bits");
    const ActionIdentifier again = ActionIdentifier::fromString(identifier.toString());
    Fuzz::require(again == identifier, "an identifier survives its text form");
    const std::hash<ActionIdentifier> hash;
    Fuzz::require(hash(again) == hash(identifier), "equal identifiers have equal hashes");
}

void checkHotkey(const QString &text)
{
    int virtualKey = -1;
    int fVirt = -1;
    const bool isConverted = KeyNames::keySequenceToVirtualKey(text, virtualKey, fVirt);
    Fuzz::require((fVirt & 2) != 0 && (fVirt & ~31) == 0, "only known flags are set");
    if (!isConverted) {
        Fuzz::require(virtualKey == 0, "a failed conversion gives no key");
        return;
    }
    Fuzz::require((fVirt & 1) != 0, "a converted hotkey is a virtual key");
    KeyNames::virtualKeyToStr(virtualKey, fVirt);
}

void checkAccelerator(int virtualKey, int fVirt)
{
    const QString text = KeyNames::virtualKeyToStr(virtualKey, fVirt);
    checkHotkey(text);
    const int key = KeyNames::oemToKey(virtualKey);
    Fuzz::require(key == 0 || KeyNames::keyToOEM(key) == virtualKey,
                  "a punctuation key has one virtual key");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = Fuzz::bytesOf(data, size);
    // As a file has it, and with any code units, as a host may pass it.
    QString codeUnits(static_cast<int>(size / sizeof(QChar)), Qt::Uninitialized);
    std::memcpy(codeUnits.data(), data, static_cast<std::size_t>(codeUnits.size()) * sizeof(QChar));
    for (const QString &text : {QString::fromUtf8(bytes), codeUnits}) {
        checkIdentifier(text);
        checkHotkey(text);
    }

    int accelerator[2] = {};
    std::memcpy(accelerator, data, std::min(size, sizeof accelerator));
    checkAccelerator(accelerator[0], accelerator[1]);
    checkAccelerator(accelerator[0] & 0xff, accelerator[1] & 31);
    return 0;
}
