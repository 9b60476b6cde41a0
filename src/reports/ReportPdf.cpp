#include "reports/ReportPdf_p.h"

#include <QIODevice>
#include <QMap>

namespace qd8 {

namespace {

// Page streams are compressed for speed: a report's pages are long runs of glyph codes,
// which the fastest level already shrinks about sixfold.
constexpr int CompressionLevel = 1;
// A glyph this far (points) from where the previous one left the pen is moved there.
constexpr qreal Slack = 0.05;

// The faces' tables a PDF viewer reads from an embedded TrueType font, in tag order.
const char* const FontTables[] = {"OS/2", "cmap", "cvt ", "fpgm", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "name",
    "post", "prep"};

quint16 u16(const QByteArray& table, int at)
{
    return at + 2 <= table.size() ? quint16(uchar(table[at]) << 8 | uchar(table[at + 1])) : 0;
}

qint16 s16(const QByteArray& table, int at)
{
    return qint16(u16(table, at));
}

void put16(QByteArray& out, quint32 v)
{
    out += char(v >> 8 & 0xff);
    out += char(v & 0xff);
}

void put32(QByteArray& out, quint32 v)
{
    put16(out, v >> 16);
    put16(out, v & 0xffff);
}

quint32 checksum(const QByteArray& data)
{
    quint32 sum = 0;
    for (qsizetype i = 0; i < data.size(); i += 4) {
        quint32 word = 0;
        for (int k = 0; k < 4; ++k)
            word = word << 8 | (i + k < data.size() ? uchar(data[i + k]) : 0);
        sum += word;
    }
    return sum;
}

// A number as PDF content takes it: at most two decimals, a blank after it.
void appendNumber(QByteArray& out, qreal value)
{
    char text[32];
    char* end = text + sizeof text;
    char* at = end;
    *--at = ' ';
    qint64 hundredths = qRound64(value * 100);
    const bool negative = hundredths < 0;
    if (negative)
        hundredths = -hundredths;
    if (const int cents = int(hundredths % 100)) {
        if (cents % 10)
            *--at = char('0' + cents % 10);
        *--at = char('0' + cents / 10);
        *--at = '.';
    }
    qint64 whole = hundredths / 100;
    do {
        *--at = char('0' + whole % 10);
        whole /= 10;
    } while (whole);
    if (negative)
        *--at = '-';
    out.append(at, end - at);
}

// A glyph code in a literal string: two bytes, escaped where a string would end or a line
// ending be read differently.
void appendCode(QByteArray& out, quint32 glyph)
{
    char bytes[4];
    int n = 0;
    for (const char c : {char(glyph >> 8 & 0xff), char(glyph & 0xff)}) {
        if (c == '(' || c == ')' || c == '\\' || c == '\r')
            bytes[n++] = '\\';
        bytes[n++] = c == '\r' ? 'r' : c;
    }
    out.append(bytes, n);
}

void appendHex4(QByteArray& out, quint32 v)
{
    static const char Hex[] = "0123456789ABCDEF";
    const char chars[4] = {Hex[v >> 12 & 15], Hex[v >> 8 & 15], Hex[v >> 4 & 15], Hex[v & 15]};
    out.append(chars, 4);
}

// A text string of the document's information: UTF-16 with its byte-order mark, in hex.
QByteArray hexText(const QString& text)
{
    QByteArray out = "<FEFF";
    for (QChar c : text)
        appendHex4(out, c.unicode());
    return out + '>';
}

// The face as a TrueType file rebuilt from its tables.
QByteArray fontFile(const QRawFont& font)
{
    QList<QPair<const char*, QByteArray>> tables;
    for (const char* tag : FontTables) {
        const QByteArray table = font.fontTable(tag);
        if (!table.isEmpty())
            tables.append({tag, table});
    }
    const int count = int(tables.size());
    int selector = 0;
    while ((2 << selector) <= count)
        ++selector;
    QByteArray out;
    put32(out, 0x00010000);
    put16(out, count);
    put16(out, 16 << selector);
    put16(out, selector);
    put16(out, count * 16 - (16 << selector));
    qsizetype offset = 12 + 16 * count;
    qsizetype headAt = -1;
    for (auto& [tag, table] : tables) {
        if (qstrcmp(tag, "head") == 0 && table.size() >= 12) {
            table.replace(8, 4, QByteArray(4, '\0'));  // checkSumAdjustment, set below
            headAt = offset;
        }
        out.append(tag, 4);
        put32(out, checksum(table));
        put32(out, quint32(offset));
        put32(out, quint32(table.size()));
        offset += (table.size() + 3) & ~3;
    }
    for (const auto& [tag, table] : std::as_const(tables)) {
        out += table;
        out.append((4 - table.size() % 4) % 4, '\0');
    }
    if (headAt >= 0) {
        QByteArray adjustment;
        put32(adjustment, 0xB1B0AFBA - checksum(out));
        out.replace(headAt + 8, 4, adjustment);
    }
    return out;
}

QByteArray compressed(const QByteArray& data)
{
    // qCompress puts the length before a zlib stream; FlateDecode reads the stream.
    return qCompress(data, CompressionLevel).mid(4);
}

} // namespace

ReportPdf::ReportPdf(QIODevice* device, const QSizeF& pageSize, const QString& title, const QString& creator)
    : m_device(device)
    , m_page(pageSize)
    , m_title(title)
    , m_creator(creator)
{
    for (int i = 0; i < 4; ++i)
        newObject();  // 1 catalogue, 2 page tree, 3 resources, 4 information
    write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

int ReportPdf::newObject()
{
    m_offsets.push_back(-1);
    return int(m_offsets.size());
}

void ReportPdf::write(const QByteArray& bytes)
{
    if (m_device->write(bytes) != bytes.size())
        m_ok = false;
    m_written += bytes.size();
}

void ReportPdf::startObject(int object)
{
    m_offsets[object - 1] = m_written;
    write(QByteArray::number(object) + " 0 obj\n");
}

void ReportPdf::writeStream(int object, const QByteArray& data, const QByteArray& extra)
{
    const QByteArray packed = compressed(data);
    startObject(object);
    write("<< /Length " + QByteArray::number(packed.size()) + " /Filter /FlateDecode" + extra + " >>\nstream\n");
    write(packed);
    write("\nendstream\nendobj\n");
}

void ReportPdf::beginPage()
{
    m_lines.truncate(0);
    m_text.truncate(0);
    m_textFace = -1;
    m_inArray = m_inString = false;
}

void ReportPdf::endPage()
{
    closeArray();
    const int contents = newObject();
    writeStream(contents, "0 g 0 G 0.5 w\n" + m_lines + "BT\n" + m_text + "ET\n");
    const int page = newObject();
    startObject(page);
    QByteArray box;
    appendNumber(box, m_page.width());
    appendNumber(box, m_page.height());
    write("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + box + "] /Resources 3 0 R /Contents " +
        QByteArray::number(contents) + " 0 R >>\nendobj\n");
    m_pages.push_back(page);
}

void ReportPdf::line(const QPointF& from, const QPointF& to)
{
    appendNumber(m_lines, from.x());
    appendNumber(m_lines, m_page.height() - from.y());
    m_lines += "m ";
    appendNumber(m_lines, to.x());
    appendNumber(m_lines, m_page.height() - to.y());
    m_lines += "l S\n";
}

ReportPdf::Face* ReportPdf::faceOf(const QRawFont& font)
{
    if (m_lastFace >= 0 && font == m_lastFont)
        return &m_faces[m_lastFace];
    const QString key = font.familyName() + QLatin1Char('\n') + font.styleName() + QLatin1Char('\n') +
        QString::number(font.weight()) + QLatin1Char('\n') + QString::number(int(font.style()));
    int index = m_faceIndex.value(key, -2);
    if (index == -2) {
        const QByteArray head = font.fontTable("head"), hhea = font.fontTable("hhea"), hmtx = font.fontTable("hmtx");
        const int glyphCount = u16(font.fontTable("maxp"), 4);
        const int metrics = u16(hhea, 34);
        const qreal unitsPerEm = u16(head, 18);
        index = -1;
        if (glyphCount > 0 && metrics > 0 && unitsPerEm > 0 && hmtx.size() >= 4 * metrics && !font.fontTable("glyf").isEmpty()) {
            Face face;
            face.font = font;
            face.name = "F" + QByteArray::number(m_faces.size());
            face.unitsPerEm = unitsPerEm;
            face.widths.resize(glyphCount);
            face.used.resize(glyphCount);
            for (int g = 0; g < glyphCount; ++g)
                face.widths[g] = float(u16(hmtx, 4 * qMin(g, metrics - 1)) * 1000 / unitsPerEm);
            index = int(m_faces.size());
            m_faces.push_back(std::move(face));
        }
        m_faceIndex.insert(key, index);
    }
    if (index < 0)
        return nullptr;
    m_lastFont = font;
    m_lastFace = index;
    return &m_faces[index];
}

void ReportPdf::closeArray()
{
    if (m_inString)
        m_text += ')';
    if (m_inArray)
        m_text += "]TJ\n";
    m_inArray = m_inString = false;
}

void ReportPdf::glyphs(const QPointF& origin, const GlyphSpan& span)
{
    if (span.count == 0)
        return;
    Face* face = faceOf(span.font);
    if (!face) {
        m_embeddable = false;
        return;
    }
    const int faceIndex = int(face - m_faces.data());
    const qreal size = span.font.pixelSize();
    if (faceIndex != m_textFace || size != m_textSize) {
        closeArray();
        m_text += '/' + face->name + ' ';
        appendNumber(m_text, size);
        m_text += "Tf\n";
        m_textFace = faceIndex;
        m_textSize = size;
    }
    const qreal scale = size / 1000;
    // A span starts where it is placed; inside it the pen moves by the glyphs' widths, and a
    // glyph placed elsewhere by the shaper (a Thai mark, a kerned pair) is moved to its place.
    bool placed = false;
    for (qsizetype i = 0; i < span.count; ++i) {
        const quint32 glyph = span.glyphs[i];
        if (glyph >= face->widths.size())
            continue;
        const qreal x = origin.x() + span.positions[i].x(), y = origin.y() + span.positions[i].y();
        if (!placed || qAbs(y - m_penY) > Slack) {
            closeArray();
            m_text += "1 0 0 1 ";
            appendNumber(m_text, x);
            appendNumber(m_text, m_page.height() - y);
            m_text += "Tm[";
            m_inArray = true;
            m_penX = x;
            m_penY = y;
            placed = true;
        } else if (qAbs(x - m_penX) > Slack) {
            if (m_inString)
                m_text += ')';
            m_inString = false;
            appendNumber(m_text, (m_penX - x) / scale);
            m_penX = x;
        }
        if (!m_inString)
            m_text += '(';
        m_inString = true;
        appendCode(m_text, glyph);
        face->used[glyph] = true;
        m_penX += face->widths[glyph] * scale;
    }
}

void ReportPdf::writeFace(const Face& face, int fontObject)
{
    const int cidFont = newObject(), descriptor = newObject(), file = newObject(), toUnicode = newObject();
    QByteArray name = (face.font.familyName() + QLatin1Char('-') + face.font.styleName()).toLatin1();
    name.replace(' ', "");
    for (char& c : name)
        if (!QChar::isLetterOrNumber(uchar(c)) && c != '-')
            c = '_';

    // Widths of the glyphs used, in runs of consecutive glyphs.
    QByteArray widths;
    for (int g = 0; g < int(face.used.size());) {
        if (!face.used[g]) {
            ++g;
            continue;
        }
        widths += QByteArray::number(g) + " [";
        for (; g < int(face.used.size()) && face.used[g]; ++g)
            appendNumber(widths, face.widths[g]);
        widths += "]\n";
    }
    // What each glyph used shows: the first character the face's own map gives it. Glyphs
    // only the shaper makes (a Thai mark moved lower) show nothing, as in other PDF writers.
    QString characters;
    for (char32_t c = 0x20; c < 0x10000; ++c)
        if (!QChar::isSurrogate(c))
            characters += QChar(c);
    const QList<quint32> indexes = face.font.glyphIndexesForString(characters);
    QMap<quint32, QChar> shown;
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const quint32 g = indexes[i];
        if (g > 0 && g < face.used.size() && face.used[g] && !shown.contains(g))
            shown.insert(g, characters[i]);
    }
    QByteArray cmap = "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n"
                      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
                      "/CMapName /Adobe-Identity-UCS def\n/CMapType 2 def\n"
                      "1 begincodespacerange\n<0000> <FFFF>\nendcodespacerange\n";
    for (auto it = shown.cbegin(); it != shown.cend();) {
        QByteArray block;
        int n = 0;
        for (; it != shown.cend() && n < 100; ++it, ++n) {
            block += '<';
            appendHex4(block, it.key());
            block += "> <";
            appendHex4(block, it.value().unicode());
            block += ">\n";
        }
        cmap += QByteArray::number(n) + " beginbfchar\n" + block + "endbfchar\n";
    }
    cmap += "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";

    const QByteArray head = face.font.fontTable("head"), hhea = face.font.fontTable("hhea");
    const auto units = [&](qint16 v) { return QByteArray::number(qRound(v * 1000 / face.unitsPerEm)); };
    startObject(fontObject);
    write("<< /Type /Font /Subtype /Type0 /BaseFont /" + name + " /Encoding /Identity-H /DescendantFonts [" +
        QByteArray::number(cidFont) + " 0 R] /ToUnicode " + QByteArray::number(toUnicode) + " 0 R >>\nendobj\n");
    startObject(cidFont);
    write("<< /Type /Font /Subtype /CIDFontType2 /BaseFont /" + name +
        " /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >> /FontDescriptor " +
        QByteArray::number(descriptor) + " 0 R /CIDToGIDMap /Identity /W [\n" + widths + "] >>\nendobj\n");
    startObject(descriptor);
    write("<< /Type /FontDescriptor /FontName /" + name + " /Flags 4 /FontBBox [" + units(s16(head, 36)) + ' ' +
        units(s16(head, 38)) + ' ' + units(s16(head, 40)) + ' ' + units(s16(head, 42)) + "] /ItalicAngle 0 /Ascent " +
        units(s16(hhea, 4)) + " /Descent " + units(s16(hhea, 6)) + " /CapHeight " + units(s16(hhea, 4)) +
        " /StemV 80 /FontFile2 " + QByteArray::number(file) + " 0 R >>\nendobj\n");
    const QByteArray program = fontFile(face.font);
    writeStream(file, program, " /Length1 " + QByteArray::number(program.size()));
    writeStream(toUnicode, cmap);
}

bool ReportPdf::finish()
{
    if (!m_embeddable)
        return false;
    QByteArray fonts;
    for (const Face& face : m_faces) {
        const int object = newObject();
        writeFace(face, object);
        fonts += '/' + face.name + ' ' + QByteArray::number(object) + " 0 R ";
    }
    startObject(3);
    write("<< /ProcSet [/PDF /Text] /Font << " + fonts + ">> >>\nendobj\n");
    QByteArray kids;
    for (int page : m_pages)
        kids += QByteArray::number(page) + " 0 R ";
    startObject(2);
    write("<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(qsizetype(m_pages.size())) + " >>\nendobj\n");
    startObject(1);
    write("<< /Type /Catalog /Pages 2 0 R >>\nendobj\n");
    startObject(4);
    write("<< /Title " + hexText(m_title) + " /Creator " + hexText(m_creator) + " >>\nendobj\n");

    const qint64 xref = m_written;
    QByteArray table = "xref\n0 " + QByteArray::number(qsizetype(m_offsets.size() + 1)) + "\n0000000000 65535 f \n";
    for (qint64 offset : m_offsets)
        table += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    write(table);
    write("trailer\n<< /Size " + QByteArray::number(qsizetype(m_offsets.size() + 1)) +
        " /Root 1 0 R /Info 4 0 R >>\nstartxref\n" + QByteArray::number(xref) + "\n%%EOF\n");
    return m_ok;
}

} // namespace qd8
