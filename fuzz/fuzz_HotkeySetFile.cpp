#include "FuzzSupport.h"
#include "HotkeySetFile.h"
#include "XmlDocument.h"
#include "XmlReading.h"

#include <QBuffer>

#include <algorithm>

namespace {

using namespace CUI;
using Steps = std::vector<ShortcutTransformation>;

// A description is only for people to read: what XML cannot hold of it is left out.
bool isSameButForDescription(const ShortcutTransformation &written,
                             const ShortcutTransformation &read)
{
    return written.kind() == read.kind() && written.actionId() == read.actionId()
           && written.shortcut() == read.shortcut()
           && XmlReading::xmlText(written.description()) == read.description();
}

void checkRoundTrip(const Steps &steps, HotkeySetFile::LockAttribute lockAttribute)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool isWritten = HotkeySetFile::write(buffer, steps, lockAttribute);
    Fuzz::require(isWritten == (HotkeySetFile::firstUnwritable(steps) == nullptr),
                  "steps are written unless one is unwritable");
    if (!isWritten)
        return;
    const HotkeySetFile::Content content = HotkeySetFile::read(XmlDocument(buffer.data()));
    Fuzz::require(!content.error, "what is written can be read");
    Fuzz::require(std::equal(steps.begin(), steps.end(), content.steps.begin(), content.steps.end(),
                             isSameButForDescription),
                  "the same steps are read again");
    const auto metadata = HotkeySetFile::readMetadata(XmlDocument(buffer.data()));
    Fuzz::require(metadata && !metadata->locked && metadata->description.isEmpty(),
                  "a written set is unlocked and has no description");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const XmlDocument document(Fuzz::bytesOf(data, size));
    const HotkeySetFile::Content content = HotkeySetFile::read(document);
    for (const ShortcutTransformation &step : content.steps)
        Fuzz::require(!step.actionId().isEmpty() && !step.shortcut().isEmpty(),
                      "a step has an action and a hotkey");
    const auto metadata = HotkeySetFile::readMetadata(document);
    Fuzz::require(metadata || content.error, "a set that can be read has metadata");
    checkRoundTrip(content.steps, HotkeySetFile::LockAttribute::Omit);
    checkRoundTrip(content.steps, HotkeySetFile::LockAttribute::WriteUnlocked);
    return 0;
}
