#include "BaseHotkeyFile.h"
#include "FuzzSupport.h"
#include "XmlDocument.h"

#include <QBuffer>

#include <algorithm>

namespace {

using namespace CUI;
using Entries = std::vector<BaseHotkeyFile::Entry>;

// Where one hotkey ends is decided by the text in the file, not by the list that was written.
bool isSame(const BaseHotkeyFile::Entry &a, const BaseHotkeyFile::Entry &b)
{
    const QLatin1String separator(", ");
    return a.actionId == b.actionId && a.shortcuts.join(separator) == b.shortcuts.join(separator);
}

void checkRoundTrip(const Entries &entries)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool isWritten = BaseHotkeyFile::write(buffer, entries);
    Fuzz::require(isWritten == (BaseHotkeyFile::firstUnwritable(entries) == nullptr),
                  "entries are written unless one is unwritable");
    if (!isWritten)
        return;
    const BaseHotkeyFile::Content content = BaseHotkeyFile::read(XmlDocument(buffer.data()));
    Fuzz::require(!content.error, "what is written can be read");
    Fuzz::require(std::equal(entries.begin(), entries.end(), content.entries.begin(),
                             content.entries.end(), isSame),
                  "the same entries are read again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const BaseHotkeyFile::Content content =
            BaseHotkeyFile::read(XmlDocument(Fuzz::bytesOf(data, size)));
    for (const BaseHotkeyFile::Entry &entry : content.entries)
        Fuzz::require(!entry.actionId.isEmpty() && !entry.shortcuts.isEmpty(),
                      "an entry has an action and a hotkey");
    checkRoundTrip(content.entries);
    return 0;
}
