#pragma once

#include <QByteArray>
#include <QHash>
#include <QPointF>
#include <QRawFont>
#include <QSizeF>
#include <QString>
#include <vector>

class QIODevice;

namespace qd8 {

// Glyphs of one font placed from a text's top left, in points.
struct GlyphSpan {
    const QRawFont& font;
    const quint32* glyphs;
    const QPointF* positions;
    qsizetype count;
};

// Where a report page is drawn, in points from the page's top left: a QPainter (the preview,
// a printer) or a page of ReportPdf.
class PageCanvas {
public:
    virtual ~PageCanvas() = default;
    virtual void glyphs(const QPointF& origin, const GlyphSpan& span) = 0;
    virtual void line(const QPointF& from, const QPointF& to) = 0;
};

// A PDF written straight from shaped glyphs. Qt's PDF engine spends several times the
// reading of a long report on each glyph (a positioning operator, a subset lookup and a
// device write per glyph); here a cell is one positioned array of glyph codes, so a
// 100,000-row report writes in about the time its rows take to read.
// TrueType faces are embedded whole (glyph codes are the font's own glyph indexes) with the
// widths and the glyph-to-character map of the glyphs used, so text stays selectable and
// searchable. A face without TrueType outlines cannot be embedded: finish() then fails and
// embeddable() tells the caller to take another way.
class ReportPdf final : public PageCanvas {
public:
    ReportPdf(QIODevice* device, const QSizeF& pageSize, const QString& title, const QString& creator);

    void beginPage();
    void endPage();
    // Fonts, page tree and cross-reference table; false when the device failed or a font
    // could not be embedded.
    bool finish();
    bool embeddable() const { return m_embeddable; }

    void glyphs(const QPointF& origin, const GlyphSpan& span) override;
    void line(const QPointF& from, const QPointF& to) override;

private:
    struct Face {
        QRawFont font;
        QByteArray name;  // resource name, /F0...
        qreal unitsPerEm = 1000;
        std::vector<float> widths;  // per glyph, in thousandths of the em
        std::vector<bool> used;
    };
    Face* faceOf(const QRawFont& font);
    void writeFace(const Face& face, int fontObject);
    int newObject();
    void startObject(int object);
    void write(const QByteArray& bytes);
    void writeStream(int object, const QByteArray& data, const QByteArray& extra = {});
    void closeArray();

    QIODevice* m_device;
    QSizeF m_page;
    QString m_title, m_creator;
    qint64 m_written = 0;
    bool m_ok = true;
    bool m_embeddable = true;
    std::vector<qint64> m_offsets;  // per object, from 1
    std::vector<int> m_pages;
    std::vector<Face> m_faces;
    QHash<QString, int> m_faceIndex;
    QRawFont m_lastFont;
    int m_lastFace = -1;

    // The page being drawn: its lines, its text, the text state.
    QByteArray m_lines, m_text;
    int m_textFace = -1;
    qreal m_textSize = 0;
    bool m_inArray = false, m_inString = false;
    qreal m_penX = 0, m_penY = 0;
};

} // namespace qd8
