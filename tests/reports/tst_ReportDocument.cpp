#include "support/ReadBack.h"
#include "support/ScratchDatabase.h"
#include "support/ScriptedServices.h"

#include "foundation/NumberText.h"
#include "reports/ReportDocument.h"
#include "reports/ReportPreview.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace qd8;
using namespace qd8::test;

namespace {

constexpr int Invoices = 1200;
// A description long enough to wrap, of Thai words without blanks between them.
const QStringList LongWords = {"ค่าบริการ", "ขนส่ง", "สินค้า", "ระหว่าง", "ประเทศ", "พร้อม", "ประกันภัย", "และ", "ค่าธรรมเนียม",
    "ศุลกากร", "สำหรับ", "เดือน", "มกราคม"};

// Amounts with four decimals whose sum a double would not keep exact.
Currency amountOf(int i)
{
    return Currency::fromRaw(qint64(i) * 123456789 % 9999999999 + 1);
}

QString customerOf(int i)
{
    return QStringList{"C1", "C2", "C3"}[i * 3 / Invoices];
}

class ReportDocumentTest : public CompanyDataTest {
protected:
    void SetUp() override
    {
        CompanyDataTest::SetUp();
        if (IsSkipped())
            return;
        QStringList values;
        for (int i = 0; i < Invoices; ++i) {
            const QString description = customerOf(i) == "C3" ? LongWords.join("") : QStringLiteral("ใบแจ้งหนี้ %1").arg(i);
            values << QStringLiteral("('IV%1', '2026-01-%2', '%3', '%4', %5, %6)")
                          .arg(i, 5, 10, QChar('0')).arg(i % 28 + 1, 2, 10, QChar('0'))
                          .arg(customerOf(i), description).arg(i % 3).arg(amountOf(i).toString());
        }
        db->run({"INSERT INTO QD8TAR (TARNCode, TARNName) VALUES ('C1', 'สมชาย การค้า'), ('C2', 'Smith, \"Jr\" Trading'), "
                 "('C3', 'ห้างหุ้นส่วนจำกัด ขนส่งไทย')",
            "INSERT INTO QD8TARInvoice (TIvoNo, TIvoDate, TIvoTARNCode, TIvoDescription, TIvoCardStatus, TIvoAmount) VALUES " +
                values.join(",")});
    }

    ReportDefinition definition(int languageId) const
    {
        ReportDefinition s;
        // E, F, * and y are the glyph codes a PDF string escapes: (, ), CR and backslash.
        s.title = languageId == 0 ? "ใบแจ้งหนี้ตามลูกค้า" : "Invoices by customer (FOB, E*)";
        s.company = "บริษัท ตัวอย่าง จำกัด";
        s.criteria = languageId == 0 ? "วันที่ 01/01/2569 ถึง 31/01/2569" : "Date 01/01/2026 to 31/01/2026";
        s.sql = "SELECT i.TIvoNo, i.TIvoDate, i.TIvoTARNCode, a.TARNName, i.TIvoDescription, i.TIvoCardStatus, i.TIvoAmount "
                "FROM QD8TARInvoice i JOIN QD8TAR a ON a.TARNCode = i.TIvoTARNCode ORDER BY i.TIvoTARNCode, i.TIvoNo";
        s.groupField = "TIvoTARNCode";
        s.groupCaptionField = "TARNName";
        s.columns = {{"TIvoNo", "No.", ReportColumn::Kind::Text, false, 9}, {"TIvoDate", "Date", ReportColumn::Kind::Date, false, 9},
            {"TIvoDescription", "Description", ReportColumn::Kind::Text, false, 20},
            {"TIvoCardStatus", "Status", ReportColumn::Kind::Integer, true, 6},
            {"TIvoAmount", "Amount", ReportColumn::Kind::Money, true, 12}};
        s.languageId = languageId;
        return s;
    }

    QTemporaryDir folder;
};

TEST_P(ReportDocumentTest, PdfHoldsEveryPageWithHeadingAndExactTotals)
{
    struct Case {
        int languageId;
        const char* firstPage;
        const char* lastPage;
        const char* subtotal;
        int yearShift;
        bool printed;  // painted on Qt's PDF engine, as a printer is
    };
    for (const Case& c : {Case{0, "หน้า 1 / %1", "หน้า %1 / %1", "รวม C2", 543, false}, Case{1, "Page 1 of %1", "Page %1 of %1", "Total C2", 0, false},
             Case{0, "หน้า 1 / %1", "หน้า %1 / %1", "รวม C2", 543, true}}) {
        SCOPED_TRACE(c.languageId + 10 * c.printed);
        ReportDocument report(definition(c.languageId));
        report.open(db->connectionString());
        ASSERT_TRUE(report.readAll());
        const QString file = folder.filePath(QStringLiteral("r%1%2.pdf").arg(c.languageId).arg(c.printed));
        if (c.printed) {
            QPdfWriter writer(file);
            writer.setPageLayout(report.pageLayout());
            ASSERT_TRUE(report.paint(writer));
        } else {
            ASSERT_TRUE(report.writePdf(file));
        }
        // Each face once, embedded, its glyphs mapped back to text.
        QProcess fonts;
        fonts.start("pdffonts", {file});
        ASSERT_TRUE(fonts.waitForFinished());
        const QStringList faces = QString::fromUtf8(fonts.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts).mid(2);
        EXPECT_EQ(faces.size(), 2) << faces.join('\n').toStdString();
        for (const QString& face : faces)
            EXPECT_TRUE(face.contains(QRegularExpression("^Loma\\S* .* yes\\s+(yes|no)\\s+yes "))) << face.toStdString();

        Currency grand, c2;
        for (int i = 0; i < Invoices; ++i) {
            grand += amountOf(i);
            c2 += customerOf(i) == "C2" ? amountOf(i) : Currency();
        }
        EXPECT_EQ(report.total(4), grand);
        const int pages = report.pageCount();
        EXPECT_GT(pages, 20);
        EXPECT_EQ(pdfPages(file), pages);
        const QString text = comparable(pdfText(file));
        for (const QString& expected : {QString::fromUtf8(c.firstPage).arg(pages), QString::fromUtf8(c.lastPage).arg(pages),
                 definition(c.languageId).title, definition(c.languageId).criteria, QString::number(QDate::currentDate().year() + c.yearShift),
                 groupedMoney(grand), groupedMoney(c2), QString::fromUtf8(c.subtotal), QStringLiteral("1,200")})
            EXPECT_TRUE(text.contains(comparable(expected))) << expected.toStdString();
    }
}

// The long description wraps between two of its words, never inside one (libthai).
TEST_P(ReportDocumentTest, ThaiWrapsBetweenWords)
{
    ReportDocument report(definition(0));
    report.open(db->connectionString());
    ASSERT_TRUE(report.readAll());
    const QString file = folder.filePath("wrap.pdf");
    ASSERT_TRUE(report.writePdf(file));
    const QString sentence = comparable(LongWords.join(""));
    QList<qsizetype> boundaries;
    for (qsizetype at = 0; const QString& word : LongWords)
        boundaries << (at += comparable(word).size());
    // The description's first line: the run of Thai from its first word to the next column.
    const QString first = comparable(LongWords[0]);
    for (const QString& line : pdfText(file).split('\n')) {
        const QString shown = line.section(QRegularExpression("\\s{2,}"), 2, 2);
        if (!comparable(shown).startsWith(first))
            continue;
        const QString fragment = comparable(shown);
        EXPECT_LT(fragment.size(), sentence.size()) << "no wrap";
        EXPECT_TRUE(sentence.startsWith(fragment));
        EXPECT_TRUE(boundaries.contains(fragment.size())) << shown.toStdString();
        return;
    }
    FAIL() << "the description is not in the PDF";
}

TEST_P(ReportDocumentTest, WorkbookAndCsvHoldTypedRowsAndTotals)
{
    ReportDocument report(definition(1));
    report.open(db->connectionString());
    ASSERT_TRUE(report.readAll());
    const QString xlsx = folder.filePath("r.xlsx"), csv = folder.filePath("r.csv");
    ASSERT_TRUE(report.exportTable(xlsx));
    ASSERT_TRUE(report.exportTable(csv));

    const QJsonArray rows = readWorkbook(xlsx);
    ASSERT_EQ(rows.size(), 6 + 3 * 2 + Invoices + 1 + 1);  // heading, groups, rows, grand total, frozen
    EXPECT_EQ(rows.last().toArray()[1].toString(), "A7");
    const QJsonArray header = rows[5].toArray();
    EXPECT_EQ(header[4].toArray()[1].toString(), "Amount");
    EXPECT_TRUE(header[4].toArray()[2].toBool());
    const QJsonArray row = rows[7].toArray();  // the first invoice, under C1's heading
    const QStringList types = {"str", "datetime", "str", "int", "float"};
    for (int c = 0; c < types.size(); ++c)
        EXPECT_EQ(row[c].toArray()[0].toString(), types[c]) << c;
    EXPECT_EQ(row[1].toArray()[1].toString(), "2026-01-01 00:00:00");
    const QJsonArray grand = rows[rows.size() - 2].toArray();
    EXPECT_EQ(grand[0].toArray()[1].toString(), "Grand total");
    EXPECT_DOUBLE_EQ(grand[4].toArray()[1].toString().toDouble(), report.total(4).toDouble());
    EXPECT_EQ(grand[3].toArray()[1].toString(), QString::number(report.total(3).raw() / Currency::Scale));

    QFile file(csv);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF" "No.,Date,Description,Status,Amount\r\n"));
    EXPECT_TRUE(bytes.contains("\"C2  Smith, \"\"Jr\"\" Trading\",,,,\r\n"));
    EXPECT_TRUE(bytes.contains(LongWords.join("").toUtf8()));
    const QList<QByteArray> grandCsv = bytes.mid(bytes.indexOf("Grand total")).trimmed().split(',');
    ASSERT_EQ(grandCsv.size(), 5);
    EXPECT_EQ(grandCsv[3].toLongLong(), report.total(3).raw() / Currency::Scale);
    EXPECT_EQ(Currency::parse(QString::fromLatin1(grandCsv[4])), report.total(4));
}

// Cancelling keeps what was there; the first page is ready before the last row is read.
TEST_P(ReportDocumentTest, CancelLeavesNothingHalfWritten)
{
    ReportDocument report(definition(0));
    report.open(db->connectionString());
    EXPECT_EQ(report.state(), ReportDocument::State::Reading);
    EXPECT_GE(report.finishedPages(), 1);
    ASSERT_TRUE(report.readAll());
    for (const QString name : {"old.pdf", "old.xlsx", "old.csv"}) {
        const QString path = folder.filePath(name);
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("before");
        old.close();
        const bool written = name.endsWith(".pdf") ? report.writePdf(path, [](int page) { return page < 3; })
                                                   : report.exportTable(path, [](qsizetype lines) { return lines < 500; });
        EXPECT_FALSE(written);
        ASSERT_TRUE(old.open(QIODevice::ReadOnly));
        EXPECT_EQ(old.readAll(), "before") << name.toStdString();
        old.close();
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 3);

    ReportDocument stopped(definition(0));
    stopped.open(db->connectionString());
    stopped.cancel();
    EXPECT_EQ(stopped.state(), ReportDocument::State::Cancelled);
    EXPECT_LT(stopped.rowCount(), Invoices);
}

TEST_P(ReportDocumentTest, PreviewTurnsPagesAndSavesThroughTheServices)
{
    auto* preview = new ReportPreview(definition(1), db->connectionString());
    preview->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<ReportPreview> alive(preview);
    preview->show();
    preview->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(preview));
    EXPECT_EQ(preview->findChild<QAction*>("actSavePdf")->text(), "Save PDF");
    QTest::keyClick(preview, Qt::Key_PageDown);
    EXPECT_EQ(preview->currentPage(), 1);
    QTest::keyClick(preview, Qt::Key_PageUp);
    EXPECT_EQ(preview->currentPage(), 0);

    const QString file = folder.filePath("saved");  // the suffix is added
    scriptedPicker().fileAnswers << file;
    preview->findChild<QAction*>("actSavePdf")->trigger();
    EXPECT_EQ(scriptedPicker().fileTitles, QStringList{"Save PDF"});
    EXPECT_EQ(pdfPages(file + ".pdf"), preview->document()->pageCount());
    preview->findChild<QAction*>("actExportXlsx")->trigger();  // cancelled: nothing asked of the file system
    EXPECT_FALSE(QFile::exists(file + ".xlsx"));

    QTest::keyClick(preview, Qt::Key_Escape);
    QTRY_VERIFY(!alive);

    ReportDefinition wrong = definition(1);
    wrong.columns[2].field = "TIvoRemark";
    ReportPreview failed(wrong, db->connectionString());
    ASSERT_EQ(scriptedMessages().shown.size(), 1);
    EXPECT_EQ(scriptedMessages().shown[0].text, "The report has no column TIvoRemark");
    EXPECT_FALSE(failed.findChild<QAction*>("actSavePdf")->isEnabled());
}

} // namespace

QD8_ON_BOTH_ENGINES(ReportDocumentTest);
