#include "reports/ReportDocument.h"

#include "foundation/Cursor.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/NumberText.h"
#include "foundation/RowStore.h"
#include "foundation/TableExport.h"
#include "foundation/Values.h"
#include "reports/ReportPdf_p.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>
#include <QSaveFile>
#include <QTextLayout>
#include <QTimer>
#include <algorithm>
#include <array>
#include <vector>

namespace qd8 {

namespace {

// Page geometry in points.
constexpr qreal Margin = 36;
constexpr qreal Padding = 3;
constexpr qreal HeadingGap = 6;
// Font sizes in points (the page unit).
constexpr int BodySize = 9;
constexpr int SmallSize = 8;
constexpr int CompanySize = 11;
constexpr int TitleSize = 14;
// Shaped texts kept for drawing again (headings, captions, repeated Thai cells).
constexpr qsizetype ShapedTexts = 4096;
// Rows read per batch, and how long one step of start() may hold the event loop.
constexpr qsizetype BatchRows = 500;
constexpr qint64 StepMs = 30;

using Kind = ReportColumn::Kind;

enum class ItemKind : quint8 { Row, GroupHeading, Subtotal, GrandTotal };

// One line of the body: a row of the store or a line of a group, where it stands on its page.
struct Item {
    ItemKind kind;
    qint32 index;  // row of the store, or group
    float y;
    float height;
};

struct Group {
    QString heading;
    std::vector<Currency> sums;  // per column of the ReportDefinition
};

// A text as it was shaped for a box.
struct ShapeKey {
    QString text;
    const QFont* font;
    float width;
    int align;
    bool fits;
    bool operator==(const ShapeKey&) const = default;
};

size_t qHash(const ShapeKey& key, size_t seed = 0)
{
    return qHashMulti(seed, key.text, key.font, key.width, key.align, key.fits);
}

class PainterCanvas final : public PageCanvas {
public:
    explicit PainterCanvas(QPainter& painter)
        : m_painter(painter)
    {
    }
    void glyphs(const QPointF& origin, const GlyphSpan& span) override
    {
        QGlyphRun run;
        run.setRawFont(span.font);
        run.setRawData(span.glyphs, span.positions, int(span.count));
        m_painter.drawGlyphRun(origin, run);
    }
    void line(const QPointF& from, const QPointF& to) override { m_painter.drawLine(from, to); }

private:
    QPainter& m_painter;
};

QFont reportFont(int size, bool bold = false)
{
    QFont font;
    font.setFamilies({QStringLiteral("Loma"), QStringLiteral("Waree"), QStringLiteral("DejaVu Sans")});
    font.setPixelSize(size);  // the painter's unit is the point
    font.setBold(bold);
    // Unhinted: the advances measured for the layout are the ones printed at any resolution.
    font.setHintingPreference(QFont::PreferNoHinting);
    // No kerning: a text's width is then the sum of its characters' advances, so figures
    // line up on the right without shaping each one twice.
    font.setKerning(false);
    return font;
}

bool isNumeric(Kind kind)
{
    return kind == Kind::Integer || kind == Kind::Quantity || kind == Kind::Money;
}

Qt::Alignment alignmentOf(Kind kind)
{
    if (isNumeric(kind))
        return Qt::AlignRight;
    return kind == Kind::Date ? Qt::AlignHCenter : Qt::AlignLeft;
}

TableExport::Type exportType(Kind kind)
{
    switch (kind) {
    case Kind::Integer:
        return TableExport::Type::Integer;
    case Kind::Quantity:
        return TableExport::Type::Number;
    case Kind::Money:
        return TableExport::Type::Money;
    case Kind::Date:
        return TableExport::Type::Date;
    case Kind::Text:
        break;
    }
    return TableExport::Type::Text;
}

} // namespace

struct ReportDocument::Private {
    ReportDocument* q;
    ReportDefinition definition;
    DateEra era;
    QString printed;
    State state = State::Idle;
    QString error;

    Cursor cursor;
    QList<int> cursorColumns;  // per ReportDefinition column, then the group field and its caption
    RowStore rows;
    std::vector<Item> items;
    std::vector<qsizetype> pageStarts;  // first item of each page
    std::vector<Group> groups;
    std::vector<Currency> grandTotal;
    QString groupKey;
    bool stepping = false;

    // Layout, in points.
    QSizeF page;
    QList<qreal> left, width;  // per column
    QFont body = reportFont(BodySize), bodyBold = reportFont(BodySize, true), small = reportFont(SmallSize);
    QFont company = reportFont(CompanySize, true), title = reportFont(TitleSize, true);
    QFontMetricsF bodyMetrics{body};
    qreal line = bodyMetrics.lineSpacing();
    qreal headingHeight = 0, columnsHeight = 0, bodyTop = 0, bodyBottom = 0, y = 0;
    // Advances of the body font's characters, measured once each. The fonts do not kern, so
    // their sum is a text's width (more for Thai, whose marks take no room beside a letter):
    // most cells are known to fit without shaping them.
    mutable std::vector<float> advances = std::vector<float>(0x10000, -1);
    // The body font's glyph of each printable ASCII character (0: not in the font): figures,
    // dates and codes are placed from these and the advances without shaping.
    QRawFont bodyRaw = QRawFont::fromFont(body);
    std::array<quint32, 128> asciiGlyphs{};
    mutable std::vector<quint32> spanGlyphs;
    mutable std::vector<QPointF> spanPositions;
    mutable QHash<ShapeKey, QList<QGlyphRun>> shaped;

    void prepareLayout();
    qreal advanceOf(QChar c) const;
    qreal advanceSum(const QString& text) const;
    bool surelyFits(const QString& text, qreal textWidth) const;
    int lineCount(const QString& text, qreal textWidth, const QFont& font) const;
    qreal textHeight(const QString& text, qreal textWidth, const QFont& font) const
    {
        return lineCount(text, textWidth, font) * QFontMetricsF(font).lineSpacing();
    }
    void add(ItemKind kind, qint32 index, qreal height, qreal keepWithNext = 0);
    void storeRow(qsizetype cursorRow);
    QString cellText(qsizetype row, int column) const;
    QVariant cellValue(qsizetype row, int column) const;
    QString amountText(Currency value, Kind kind) const;
    void closeGroup();
    void finish();
    bool step(qint64 budgetMs);
    void fail(const QString& message);

    bool plainAscii(const QString& text) const;
    const QList<QGlyphRun>& shape(const QString& text, const QFont& font, qreal width, Qt::Alignment align, bool fits) const;
    // `fits`: the text is known to take one line.
    void drawText(PageCanvas& canvas, const QRectF& box, const QString& text, Qt::Alignment align, const QFont& font,
        bool fits = false) const;
    void drawHeading(PageCanvas& canvas, int pageNumber) const;
    void drawItem(PageCanvas& canvas, const Item& item) const;
    void drawTotals(PageCanvas& canvas, const Item& item, const QString& label, const std::vector<Currency>& sums) const;
    void drawPage(PageCanvas& canvas, int page) const;
    QString pageText(int pageNumber) const;
};

void ReportDocument::Private::prepareLayout()
{
    page = q->pageLayout().fullRect(QPageLayout::Point).size();
    const qreal printable = page.width() - 2 * Margin;
    qreal units = 0;
    for (const ReportColumn& column : definition.columns)
        units += qMax(column.width, 1);
    qreal x = Margin;
    for (const ReportColumn& column : definition.columns) {
        const qreal w = printable * qMax(column.width, 1) / qMax<qreal>(units, 1);
        left << x;
        width << w;
        x += w;
    }
    headingHeight = QFontMetricsF(company).lineSpacing() + QFontMetricsF(title).lineSpacing();
    if (!definition.criteria.isEmpty())
        headingHeight += textHeight(definition.criteria, printable, body);
    qreal captions = line;
    for (int c = 0; c < definition.columns.size(); ++c)
        captions = qMax(captions, textHeight(definition.columns[c].caption, width[c] - 2 * Padding, bodyBold));
    columnsHeight = captions + 2 * Padding;
    bodyTop = Margin + headingHeight + HeadingGap + columnsHeight;
    bodyBottom = page.height() - Margin - QFontMetricsF(small).lineSpacing() - HeadingGap;
    y = bodyTop;

    QString ascii;
    for (char16_t c = 0x20; c < 0x7f; ++c)
        ascii += QChar(c);
    const QList<quint32> glyphs = bodyRaw.glyphIndexesForString(ascii);
    std::copy_n(glyphs.cbegin(), qMin<qsizetype>(glyphs.size(), 0x7f - 0x20), asciiGlyphs.begin() + 0x20);
}

qreal ReportDocument::Private::advanceOf(QChar c) const
{
    float& advance = advances[c.unicode()];
    if (advance < 0)
        advance = c.isSurrogate() ? 1e6f : float(bodyMetrics.horizontalAdvance(c));
    return advance;
}

qreal ReportDocument::Private::advanceSum(const QString& text) const
{
    qreal sum = 0;
    for (QChar c : text)
        sum += advanceOf(c);
    return sum;
}

bool ReportDocument::Private::surelyFits(const QString& text, qreal textWidth) const
{
    return advanceSum(text) <= textWidth - 0.5;
}

int ReportDocument::Private::lineCount(const QString& text, qreal textWidth, const QFont& font) const
{
    if (text.isEmpty() || (font == body && surelyFits(text, textWidth)) || QFontMetricsF(font).horizontalAdvance(text) <= textWidth)
        return 1;
    // Qt breaks Thai between words (libthai), other scripts at blanks.
    QTextLayout layout(text, font);
    layout.beginLayout();
    int lines = 0;
    for (QTextLine l = layout.createLine(); l.isValid(); l = layout.createLine()) {
        l.setLineWidth(textWidth);
        ++lines;
    }
    layout.endLayout();
    return qMax(lines, 1);
}

void ReportDocument::Private::add(ItemKind kind, qint32 index, qreal height, qreal keepWithNext)
{
    const bool pageHasItems = !pageStarts.empty() && qsizetype(items.size()) > pageStarts.back();
    if (pageStarts.empty() || (pageHasItems && y + height + keepWithNext > bodyBottom)) {
        pageStarts.push_back(qsizetype(items.size()));
        y = bodyTop;
    }
    items.push_back({kind, index, float(y), float(height)});
    y += height;
}

void ReportDocument::Private::storeRow(qsizetype cursorRow)
{
    const qsizetype row = rows.rowCount();
    qreal height = line;
    for (int c = 0; c < cursorColumns.size(); ++c) {
        const QVariant v = cursor.value(cursorRow, cursorColumns[c]);
        const Kind kind = c < definition.columns.size() ? definition.columns[c].kind : Kind::Text;
        if (v.isNull()) {
            rows.addNull();
            continue;
        }
        switch (kind) {
        case Kind::Integer:
            rows.addInteger(qint64(toNumber(v)));
            break;
        case Kind::Quantity:
        case Kind::Money:
            rows.addInteger(toCurrency(v).raw());
            break;
        case Kind::Date: {
            const QDate date = v.typeId() == QMetaType::QDateTime ? v.toDateTime().date() : v.toDate();
            date.isValid() ? rows.addInteger(date.toJulianDay()) : rows.addNull();
            break;
        }
        case Kind::Text: {
            const QString s = text(v);
            const QByteArray utf8 = s.toUtf8();
            rows.addText(utf8.constData(), utf8.size());
            if (c < definition.columns.size())
                height = qMax(height, lineCount(s, width[c] - 2 * Padding, body) * line);
            break;
        }
        }
    }
    rows.endRow();

    if (!definition.groupField.isEmpty()) {
        const int keyColumn = int(definition.columns.size());
        const QString key = cellText(row, keyColumn);
        if (groups.empty() || key != groupKey) {
            closeGroup();
            groupKey = key;
            QString heading = key;
            if (!definition.groupCaptionField.isEmpty())
                heading += QStringLiteral("  ") + cellText(row, keyColumn + 1);
            groups.push_back({heading, std::vector<Currency>(definition.columns.size())});
            const qreal h = textHeight(heading, page.width() - 2 * Margin, bodyBold) + Padding;
            add(ItemKind::GroupHeading, qint32(groups.size() - 1), h, height);
        }
    }
    for (int c = 0; c < definition.columns.size(); ++c) {
        if (!definition.columns[c].total)
            continue;
        const RowStore::Cell cell = rows.cell(row, c);
        const Currency amount = definition.columns[c].kind == Kind::Integer ? Currency::fromInt(cell.integer) : Currency::fromRaw(cell.integer);
        grandTotal[c] += amount;
        if (!groups.empty())
            groups.back().sums[c] += amount;
    }
    add(ItemKind::Row, qint32(row), height);
}

QVariant ReportDocument::Private::cellValue(qsizetype row, int column) const
{
    const RowStore::Cell cell = rows.cell(row, column);
    if (cell.type == RowStore::Type::Null)
        return {};
    if (cell.type == RowStore::Type::Text)
        return QString::fromUtf8(cell.data, cell.size);
    switch (definition.columns[column].kind) {
    case Kind::Integer:
        return cell.integer;
    case Kind::Quantity:
    case Kind::Money:
        return QVariant::fromValue(Currency::fromRaw(cell.integer));
    case Kind::Date:
        return QDate::fromJulianDay(cell.integer);
    case Kind::Text:
        break;
    }
    return {};
}

QString ReportDocument::Private::amountText(Currency value, Kind kind) const
{
    return kind == Kind::Integer ? groupedMoney(value, 0) : groupedMoney(value, 2);
}

QString ReportDocument::Private::cellText(qsizetype row, int column) const
{
    const RowStore::Cell cell = rows.cell(row, column);
    if (cell.type == RowStore::Type::Null)
        return {};
    if (cell.type == RowStore::Type::Text)
        return QString::fromUtf8(cell.data, cell.size);
    const Kind kind = definition.columns[column].kind;
    if (kind == Kind::Date)
        return dateText(QDate::fromJulianDay(cell.integer), era);
    return amountText(kind == Kind::Integer ? Currency::fromInt(cell.integer) : Currency::fromRaw(cell.integer), kind);
}

void ReportDocument::Private::closeGroup()
{
    if (!groups.empty())
        add(ItemKind::Subtotal, qint32(groups.size() - 1), line + 2 * Padding);
}

void ReportDocument::Private::finish()
{
    if (!definition.groupField.isEmpty())
        closeGroup();
    if (std::any_of(definition.columns.cbegin(), definition.columns.cend(), [](const ReportColumn& c) { return c.total; }))
        add(ItemKind::GrandTotal, 0, line + 2 * Padding);
    if (pageStarts.empty())
        pageStarts.push_back(0);  // a report without rows still has its heading page
    cursor.close();
    state = State::Complete;
}

void ReportDocument::Private::fail(const QString& message)
{
    cursor.close();
    state = State::Failed;
    error = message;
    emit q->failed(message);
}

bool ReportDocument::Private::step(qint64 budgetMs)
{
    if (state != State::Reading || stepping)
        return false;
    stepping = true;
    QElapsedTimer clock;
    clock.start();
    bool more = true;
    while (more && clock.elapsed() < budgetMs)
        more = q->readMore(BatchRows);
    stepping = false;
    if (state == State::Failed)
        return false;
    emit q->progressed(rows.rowCount(), q->finishedPages());
    if (state == State::Complete)
        emit q->finished();
    return state == State::Reading;
}

bool ReportDocument::Private::plainAscii(const QString& text) const
{
    return std::all_of(text.cbegin(), text.cend(), [this](QChar c) { return c.unicode() < 0x80 && asciiGlyphs[c.unicode()] != 0; });
}

const QList<QGlyphRun>& ReportDocument::Private::shape(const QString& text, const QFont& font, qreal width, Qt::Alignment align,
    bool fits) const
{
    const ShapeKey key{text, &font, float(width), int(align), fits};
    if (const auto found = shaped.constFind(key); found != shaped.cend())
        return *found;
    if (shaped.size() >= ShapedTexts)
        shaped.clear();
    // Qt breaks Thai between words (libthai), other scripts at blanks.
    QTextLayout layout(text, font);
    QTextOption option(align);
    option.setWrapMode(fits ? QTextOption::NoWrap : QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal lineY = 0;
    for (QTextLine l = layout.createLine(); l.isValid(); l = layout.createLine()) {
        l.setLineWidth(width);
        l.setPosition(QPointF(0, lineY));
        lineY += l.height();
    }
    layout.endLayout();
    return *shaped.insert(key, layout.glyphRuns());
}

void ReportDocument::Private::drawText(PageCanvas& canvas, const QRectF& box, const QString& text, Qt::Alignment align,
    const QFont& font, bool fits) const
{
    if (text.isEmpty())
        return;
    if (fits && &font == &body && plainAscii(text)) {
        // Figures, dates and codes: placed from the character table, no shaping.
        const qsizetype n = text.size();
        spanGlyphs.resize(n);
        spanPositions.resize(n);
        const qreal baseline = bodyMetrics.ascent();
        qreal x = 0;
        for (qsizetype i = 0; i < n; ++i) {
            spanGlyphs[i] = asciiGlyphs[text[i].unicode()];
            spanPositions[i] = QPointF(x, baseline);
            x += advanceOf(text[i]);
        }
        const qreal shift = align & Qt::AlignRight ? box.width() - x : align & Qt::AlignHCenter ? (box.width() - x) / 2 : 0;
        canvas.glyphs(box.topLeft() + QPointF(shift, 0), {bodyRaw, spanGlyphs.data(), spanPositions.data(), n});
        return;
    }
    for (const QGlyphRun& run : shape(text, font, box.width(), align, fits)) {
        const QRawFont runFont = run.rawFont();
        const QList<quint32> glyphs = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        canvas.glyphs(box.topLeft(), {runFont, glyphs.constData(), positions.constData(), qMin(glyphs.size(), positions.size())});
    }
}

QString ReportDocument::Private::pageText(int pageNumber) const
{
    if (state != State::Complete)
        return inLanguage(definition.languageId, "หน้า %1", "Page %1").arg(pageNumber);
    return inLanguage(definition.languageId, "หน้า %1 / %2", "Page %1 of %2").arg(pageNumber).arg(pageStarts.size());
}

void ReportDocument::Private::drawHeading(PageCanvas& p, int pageNumber) const
{
    const qreal printable = page.width() - 2 * Margin;
    qreal top = Margin;
    const qreal companyLine = QFontMetricsF(company).lineSpacing();
    drawText(p, QRectF(Margin, top, printable, companyLine), definition.company, Qt::AlignLeft, company);
    drawText(p, QRectF(Margin, top, printable, companyLine), printed, Qt::AlignRight, small);
    top += companyLine;
    drawText(p, QRectF(Margin, top, printable, QFontMetricsF(title).lineSpacing()), definition.title, Qt::AlignLeft, title);
    top += QFontMetricsF(title).lineSpacing();
    if (!definition.criteria.isEmpty())
        drawText(p, QRectF(Margin, top, printable, bodyTop), definition.criteria, Qt::AlignLeft, body);

    const qreal captionsTop = bodyTop - columnsHeight;
    p.line(QPointF(Margin, captionsTop), QPointF(page.width() - Margin, captionsTop));
    for (int c = 0; c < definition.columns.size(); ++c) {
        const QRectF box(left[c] + Padding, captionsTop + Padding, width[c] - 2 * Padding, columnsHeight);
        drawText(p, box, definition.columns[c].caption, alignmentOf(definition.columns[c].kind), bodyBold);
    }
    p.line(QPointF(Margin, bodyTop), QPointF(page.width() - Margin, bodyTop));

    const qreal footer = QFontMetricsF(small).lineSpacing();
    drawText(p, QRectF(Margin, page.height() - Margin - footer, printable, footer), pageText(pageNumber), Qt::AlignRight, small);
}

void ReportDocument::Private::drawTotals(PageCanvas& p, const Item& item, const QString& label, const std::vector<Currency>& sums) const
{
    int firstTotal = int(definition.columns.size());
    for (int c = 0; c < definition.columns.size(); ++c) {
        if (definition.columns[c].total) {
            firstTotal = qMin(firstTotal, c);
            const QRectF box(left[c] + Padding, item.y + Padding, width[c] - 2 * Padding, line);
            drawText(p, box, amountText(sums[c], definition.columns[c].kind), Qt::AlignRight, bodyBold);
            p.line(QPointF(left[c] + Padding, item.y + 1), QPointF(left[c] + width[c] - Padding, item.y + 1));
        }
    }
    // The label takes the columns before the first total.
    const qreal labelWidth = (firstTotal < definition.columns.size() ? left[firstTotal] : page.width() - Margin) - Margin - 2 * Padding;
    drawText(p, QRectF(Margin + Padding, item.y + Padding, qMax<qreal>(labelWidth, 0), line), label, Qt::AlignLeft, bodyBold);
}

void ReportDocument::Private::drawItem(PageCanvas& p, const Item& item) const
{
    switch (item.kind) {
    case ItemKind::Row: {
        // A row laid out on one line has every cell on one line.
        const bool oneLine = item.height < 1.5 * line;
        for (int c = 0; c < definition.columns.size(); ++c) {
            const QRectF box(left[c] + Padding, item.y, width[c] - 2 * Padding, item.height);
            const ReportColumn::Kind kind = definition.columns[c].kind;
            drawText(p, box, cellText(item.index, c), alignmentOf(kind), body, oneLine || kind != Kind::Text);
        }
        return;
    }
    case ItemKind::GroupHeading:
        drawText(p, QRectF(Margin + Padding, item.y + Padding, page.width() - 2 * Margin - 2 * Padding, item.height),
            groups[item.index].heading, Qt::AlignLeft, bodyBold);
        return;
    case ItemKind::Subtotal: {
        const Group& group = groups[item.index];
        drawTotals(p, item, inLanguage(definition.languageId, "รวม %1", "Total %1").arg(group.heading), group.sums);
        return;
    }
    case ItemKind::GrandTotal:
        drawTotals(p, item, inLanguage(definition.languageId, "รวมทั้งสิ้น", "Grand total"), grandTotal);
        return;
    }
}

void ReportDocument::Private::drawPage(PageCanvas& canvas, int page) const
{
    drawHeading(canvas, page + 1);
    const qsizetype end = page + 1 < qsizetype(pageStarts.size()) ? pageStarts[page + 1] : qsizetype(items.size());
    for (qsizetype i = pageStarts[page]; i < end; ++i)
        drawItem(canvas, items[i]);
}

ReportDocument::ReportDocument(const ReportDefinition& definition, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->q = this;
    d->definition = definition;
    d->era = DateLook::forLanguage(definition.languageId).era;
    d->printed = inLanguage(definition.languageId, "พิมพ์เมื่อ %1", "Printed %1")
                     .arg(dateTimeText(QDateTime::currentDateTime(), d->era));
    d->grandTotal.resize(definition.columns.size());
    d->prepareLayout();
}

ReportDocument::~ReportDocument() = default;

const ReportDefinition& ReportDocument::definition() const
{
    return d->definition;
}

QPageLayout ReportDocument::pageLayout() const
{
    return QPageLayout(QPageSize(QPageSize::A4), d->definition.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(), QPageLayout::Point);
}

void ReportDocument::open(const QString& connectionString)
{
    d->cursor.open(Sql(d->definition.sql), connectionString, BatchRows);
    QStringList fields;
    for (const ReportColumn& column : d->definition.columns)
        fields << column.field;
    if (!d->definition.groupField.isEmpty())
        fields << d->definition.groupField;
    if (!d->definition.groupCaptionField.isEmpty())
        fields << d->definition.groupCaptionField;
    d->cursorColumns.clear();
    for (const QString& field : fields) {
        const int column = d->cursor.columnIndex(field);
        if (column < 0) {
            d->cursor.close();
            const QString english = QStringLiteral("The report has no column %1").arg(field);
            throw DbError(DbError::Kind::Usage, english, d->definition.sql).explain(QStringLiteral("รายงานไม่มีคอลัมน์ %1").arg(field), english);
        }
        d->cursorColumns << column;
    }
    d->state = State::Reading;
    for (qsizetype r = 0; r < d->cursor.rowCount(); ++r)
        d->storeRow(r);
    if (d->cursor.atEnd())
        d->finish();
}

bool ReportDocument::readMore(qsizetype rows)
{
    if (d->state != State::Reading)
        return false;
    try {
        const qsizetype first = d->cursor.rowCount();
        d->cursor.fetch(rows);
        for (qsizetype r = first; r < d->cursor.rowCount(); ++r)
            d->storeRow(r);
        if (d->cursor.atEnd())
            d->finish();
    } catch (const DbError& e) {
        d->fail(e.report(d->definition.languageId));
        return false;
    }
    return d->state == State::Reading;
}

void ReportDocument::start(const QString& connectionString)
{
    try {
        open(connectionString);
    } catch (const DbError& e) {
        d->fail(e.report(d->definition.languageId));
        return;
    }
    // Each step re-arms itself through the event loop until the reading ends.
    const auto next = std::make_shared<std::function<void()>>();
    *next = [this, next] {
        if (d->step(StepMs))
            QTimer::singleShot(0, this, *next);
    };
    if (d->state == State::Complete) {
        emit progressed(d->rows.rowCount(), finishedPages());
        emit finished();
    } else {
        QTimer::singleShot(0, this, *next);
    }
}

void ReportDocument::cancel()
{
    if (d->state != State::Reading)
        return;
    d->cursor.close();
    d->state = State::Cancelled;
    emit cancelled();
}

bool ReportDocument::readAll()
{
    const QPointer<ReportDocument> self(this);
    while (d->state == State::Reading) {
        if (!d->step(StepMs) || !self)
            break;
        QCoreApplication::processEvents();
        if (!self)
            return false;
    }
    return self && d->state == State::Complete;
}

ReportDocument::State ReportDocument::state() const
{
    return d->state;
}

QString ReportDocument::errorText() const
{
    return d->error;
}

qsizetype ReportDocument::rowCount() const
{
    return d->rows.rowCount();
}

int ReportDocument::pageCount() const
{
    return int(d->pageStarts.size());
}

int ReportDocument::finishedPages() const
{
    return d->state == State::Complete ? pageCount() : qMax(pageCount() - 1, 0);
}

Currency ReportDocument::total(int column) const
{
    return column >= 0 && column < int(d->grandTotal.size()) ? d->grandTotal[column] : Currency();
}

void ReportDocument::paintPage(QPainter& painter, int page) const
{
    if (page < 0 || page >= pageCount())
        return;
    painter.save();
    painter.setPen(QPen(Qt::black, 0.5));
    PainterCanvas canvas(painter);
    d->drawPage(canvas, page);
    painter.restore();
}

bool ReportDocument::paint(QPagedPaintDevice& device, const std::function<bool(int page)>& step) const
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const qreal scale = device.logicalDpiX() / 72.0;
    painter.scale(scale, scale);
    for (int p = 0; p < pageCount(); ++p) {
        if (p > 0)
            device.newPage();
        paintPage(painter, p);
        if (step && !step(p + 1))
            return false;
    }
    return painter.end();
}

bool ReportDocument::writePdf(const QString& fileName, const std::function<bool(int page)>& step)
{
    const QString creator = QStringLiteral("QD8Designer2");
    // The report's own writer first; a face it cannot embed (no TrueType outlines) sends the
    // whole report through Qt's PDF engine instead.
    for (const bool own : {true, false}) {
        QSaveFile file(fileName);
        bool written = false, embeddable = true;
        if (file.open(QIODevice::WriteOnly)) {
            if (own) {
                ReportPdf pdf(&file, d->page, d->definition.title, creator);
                written = true;
                for (int p = 0; written && p < pageCount(); ++p) {
                    pdf.beginPage();
                    d->drawPage(pdf, p);
                    pdf.endPage();
                    written = pdf.embeddable() && (!step || step(p + 1));
                }
                written = written && pdf.finish();
                embeddable = pdf.embeddable();
            } else {
                QPdfWriter writer(&file);
                writer.setPageLayout(pageLayout());
                writer.setTitle(d->definition.title);
                writer.setCreator(creator);
                written = paint(writer, step);
            }
        }
        if (written && file.commit())
            return true;
        if (!embeddable)
            continue;
        if (file.error() != QFileDevice::NoError)
            d->error = inLanguage(d->definition.languageId, "บันทึกแฟ้ม %1 ไม่ได้: %2", "Could not write %1: %2").arg(fileName, file.errorString());
        file.cancelWriting();
        return false;
    }
    return false;
}

bool ReportDocument::exportTable(const QString& fileName, const std::function<bool(qsizetype lines)>& step)
{
    QList<TableExport::Column> columns;
    for (const ReportColumn& column : d->definition.columns)
        columns.append({column.caption, exportType(column.kind), column.width});
    QStringList heading{d->definition.title, d->definition.company};
    if (!d->definition.criteria.isEmpty())
        heading << d->definition.criteria;
    heading << d->printed;
    TableExport out(fileName, columns, d->definition.languageId, heading);

    const auto totals = [&](const QString& label, const std::vector<Currency>& sums, TableExport::RowStyle style) {
        QVariantList values(d->definition.columns.size());
        if (!values.isEmpty())
            values[0] = label;
        for (int c = 0; c < d->definition.columns.size(); ++c) {
            if (d->definition.columns[c].total)
                values[c] = d->definition.columns[c].kind == Kind::Integer ? QVariant(qint64(sums[c].raw() / Currency::Scale))
                                                                      : QVariant::fromValue(sums[c]);
        }
        return out.addRow(values, style);
    };
    qsizetype lines = 0;
    for (const Item& item : d->items) {
        bool ok = true;
        switch (item.kind) {
        case ItemKind::Row: {
            QVariantList values;
            for (int c = 0; c < d->definition.columns.size(); ++c)
                values << d->cellValue(item.index, c);
            ok = out.addRow(values);
            break;
        }
        case ItemKind::GroupHeading:
            ok = out.addRow({d->groups[item.index].heading}, TableExport::RowStyle::Subtotal);
            break;
        case ItemKind::Subtotal: {
            const Group& group = d->groups[item.index];
            ok = totals(inLanguage(d->definition.languageId, "รวม %1", "Total %1").arg(group.heading), group.sums,
                TableExport::RowStyle::Subtotal);
            break;
        }
        case ItemKind::GrandTotal:
            ok = totals(inLanguage(d->definition.languageId, "รวมทั้งสิ้น", "Grand total"), d->grandTotal, TableExport::RowStyle::Total);
            break;
        }
        if (!ok)
            break;
        if (step && ++lines % BatchRows == 0 && !step(lines)) {
            out.discard();
            return false;
        }
    }
    if (out.finish())
        return true;
    d->error = out.errorText();
    return false;
}

} // namespace qd8
