#include "PdfOutline.h"

#include <QRegularExpression>
#include <QVector>

#include <algorithm>

namespace CUI {

namespace {

/// The number behind the last @p key of @p text; -1 when there is none.
int lastNumber(const QByteArray &text, const char *key)
{
    const int place = text.lastIndexOf(key);
    if (place < 0)
        return -1;
    const QString behind = QString::fromLatin1(text.mid(place + int(qstrlen(key)), 24));
    const auto match = QRegularExpression(QStringLiteral("^\\s*(\\d+)")).match(behind);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QByteArray textString(const QString &text)
{
    QByteArray utf16("\xFE\xFF", 2);
    for (const QChar c : text) {
        utf16 += char(c.row());
        utf16 += char(c.cell());
    }
    return '<' + utf16.toHex() + '>';
}

/// What an update has to know of a document, read from its last cross-reference table.
struct Document {
    int tableOffset = -1;
    int size = -1; ///< the number of the first object that there is not
    int root = -1;
    int information = -1;
    QByteArray catalogue; ///< what stands in the dictionary of the root
    QVector<int> pages; ///< the numbers of their objects

    bool isUsable() const { return information > 0 && !catalogue.isEmpty() && !pages.isEmpty(); }
};

/// The dictionary of an object, without its brackets; empty when there is none in that place.
QByteArray dictionary(const QByteArray &pdf, const Document &document, int number)
{
    constexpr int entryLength = 20;
    const QByteArray head = "xref\n0 " + QByteArray::number(document.size) + '\n';
    if (document.tableOffset < 0 || number <= 0 || number >= document.size
        || pdf.mid(document.tableOffset, head.size()) != head)
        return {};
    const int entry = document.tableOffset + head.size() + number * entryLength;
    const int start = pdf.mid(entry, 10).toInt();
    const QByteArray text = pdf.mid(start, pdf.indexOf("endobj", start) - start).trimmed();
    const QByteArray opening = QByteArray::number(number) + " 0 obj\n<<";
    if (!text.startsWith(opening) || !text.endsWith(">>"))
        return {};
    return text.mid(opening.size(), text.size() - opening.size() - 2);
}

Document read(const QByteArray &pdf)
{
    const QByteArray trailer = pdf.mid(pdf.lastIndexOf("trailer"));
    Document document;
    document.tableOffset = lastNumber(pdf, "startxref");
    document.size = lastNumber(trailer, "/Size");
    document.root = lastNumber(trailer, "/Root");
    document.information = lastNumber(trailer, "/Info");
    document.catalogue = dictionary(pdf, document, document.root);
    const QByteArray tree = dictionary(pdf, document, lastNumber(document.catalogue, "/Pages"));
    const int list = tree.indexOf('[', tree.indexOf("/Kids"));
    const QString kids = QString::fromLatin1(tree.mid(list, tree.indexOf(']', list) - list));
    static const QRegularExpression reference(QStringLiteral("(\\d+) 0 R"));
    for (auto match = reference.globalMatch(kids); match.hasNext();)
        document.pages.append(match.next().captured(1).toInt());
    return document;
}

/// The objects that are added to a document.
class Update
{
public:
    Update(const QByteArray &pdf, const Document &document, const std::vector<PdfBookmark> &marks)
        : m_document(document), m_marks(marks), m_text(pdf)
    {
    }

    QByteArray write();

private:
    struct Family {
        int first = -1; // children, by their places among the bookmarks
        int last = -1;
        int count = 0; // descendants
        int previous = -1;
        int next = -1;
        int parent = -1;
    };

    int outline() const { return m_document.size; }
    int numberOf(int mark) const { return outline() + 1 + mark; }
    QByteArray link(const char *key, int mark) const;
    void relate();
    QByteArray children(const Family &family) const;
    QByteArray item(int mark) const;
    void addObject(int number, const QByteArray &contents);
    void addTable();

    const Document &m_document;
    const std::vector<PdfBookmark> &m_marks;
    std::vector<Family> m_families; // those of the bookmarks
    Family m_top;
    QByteArray m_text;
    QVector<int> m_offsets;
};

void Update::relate()
{
    m_families.resize(m_marks.size());
    std::vector<int> path; // the bookmarks that the next one may be below
    for (int i = 0; i < int(m_marks.size()); ++i) {
        path.resize(std::min(path.size(), std::size_t(m_marks[std::size_t(i)].level)));
        Family &self = m_families[std::size_t(i)];
        self.parent = path.empty() ? -1 : path.back();
        Family &parent = path.empty() ? m_top : m_families[std::size_t(path.back())];
        self.previous = parent.last;
        if (parent.last >= 0)
            m_families[std::size_t(parent.last)].next = i;
        else
            parent.first = i;
        parent.last = i;
        ++parent.count;
        path.push_back(i);
    }
}

QByteArray Update::link(const char *key, int mark) const
{
    return mark < 0 ? QByteArray() : key + (' ' + QByteArray::number(numberOf(mark))) + " 0 R\n";
}

/// A negative count of children: they are folded in.
QByteArray Update::children(const Family &family) const
{
    if (family.count == 0)
        return {};
    const int count = &family == &m_top ? family.count : -family.count;
    return link("/First", family.first) + link("/Last", family.last) + "/Count "
           + QByteArray::number(count) + '\n';
}

QByteArray Update::item(int mark) const
{
    const PdfBookmark &bookmark = m_marks[std::size_t(mark)];
    const Family &family = m_families[std::size_t(mark)];
    const int parent = family.parent < 0 ? outline() : numberOf(family.parent);
    return "/Title " + textString(bookmark.title) + "\n/Parent " + QByteArray::number(parent)
           + " 0 R\n" + link("/Prev", family.previous) + link("/Next", family.next)
           + children(family) + "/Dest ["
           + QByteArray::number(m_document.pages.value(bookmark.page, m_document.pages.first()))
           + " 0 R /XYZ 0 " + QByteArray::number(bookmark.top, 'f', 2) + " null]\n";
}

void Update::addObject(int number, const QByteArray &contents)
{
    m_offsets.append(m_text.size());
    m_text += QByteArray::number(number) + " 0 obj\n<<" + contents + ">>\nendobj\n";
}

void Update::addTable()
{
    const auto entry = [](int offset) {
        return QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    };
    const int offset = m_text.size();
    m_text += "xref\n" + QByteArray::number(m_document.root) + " 1\n" + entry(m_offsets.first())
              + QByteArray::number(outline()) + ' ' + QByteArray::number(m_offsets.size() - 1)
              + '\n';
    for (int i = 1; i < m_offsets.size(); ++i)
        m_text += entry(m_offsets.at(i));
    m_text += "trailer\n<<\n/Size " + QByteArray::number(outline() + m_offsets.size() - 1)
              + "\n/Root " + QByteArray::number(m_document.root) + " 0 R\n/Info "
              + QByteArray::number(m_document.information) + " 0 R\n/Prev "
              + QByteArray::number(m_document.tableOffset) + "\n>>\nstartxref\n"
              + QByteArray::number(offset) + "\n%%EOF\n";
}

QByteArray Update::write()
{
    relate();
    addObject(m_document.root, m_document.catalogue + "\n/Outlines " + QByteArray::number(outline())
                                       + " 0 R\n/PageMode /UseOutlines\n");
    addObject(outline(), "/Type /Outlines\n" + children(m_top));
    for (int i = 0; i < int(m_marks.size()); ++i)
        addObject(numberOf(i), item(i));
    addTable();
    return m_text;
}

} // namespace

QByteArray withOutline(const QByteArray &pdf, const std::vector<PdfBookmark> &bookmarks)
{
    const Document document = read(pdf);
    if (bookmarks.empty() || !document.isUsable())
        return pdf;
    return Update(pdf, document, bookmarks).write();
}

} // namespace CUI
