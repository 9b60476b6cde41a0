#include "attachments/ClientCapture.h"
#include "attachments/CropDialog_p.h"
#include "attachments/PdfPages.h"
#include "support/ScriptedServices.h"

#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace qd8;
using namespace qd8::test;

namespace {

// Pages as poppler reads them, not as the code that wrote them counts.
int popplerPages(const QString& file)
{
    QProcess info;
    info.start("pdfinfo", {file});
    info.waitForFinished();
    return QRegularExpression("Pages:\\s+(\\d+)").match(info.readAllStandardOutput()).captured(1).toInt();
}

// A window of a known size, captured, cropped as the user chose, written as asked.
TEST(ClientCapture, WindowCaptureIsCroppedAndKeptInTheDocumentsFolder)
{
    const struct {
        const char* format;
        int pagesBefore;  // of the scanned PDF there is
        std::optional<QRect> crop;
        QString file;     // written, "" for nothing
        QSize size;       // PNG read back
        int pagesAfter;
    } cases[] = {
        {"PNG", 0, QRect(0, 0, 320, 200), "JV001.PNG", {320, 200}, 0},
        {"png", 0, QRect(10, 20, 100, 50), "JV001.PNG", {100, 50}, 0},
        {"PNG", 0, std::nullopt, "", {}, 0},  // the user gave up
        {"PDF", 0, QRect(0, 0, 320, 200), "JV001.PDF", {}, 1},
        {"PDF", 2, QRect(0, 0, 160, 100), "JV001.PDF", {}, 3},  // one page more, none lost
    };
    QWidget window;
    window.resize(320, 200);
    window.show();
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.format) + " " + std::to_string(c.pagesBefore));
        QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("HardCopy/GLJV"));
        if (c.pagesBefore > 0) {
            QDir().mkpath(folder);
            ASSERT_TRUE(PdfPages::write(QList<QImage>(c.pagesBefore, QImage(850, 1100, QImage::Format_Grayscale8)),
                folder + QStringLiteral("/JV001.PDF")));
        }
        ClientCapture capture;
        capture.setAttachmentFolder(folder);
        capture.setDocumentNumber(QStringLiteral(" JV001 "));
        capture.setSaveFormat(QString::fromLatin1(c.format));
        capture.crop = [&](const QImage& picture) { return picture.size() == QSize(320, 200) ? c.crop : std::nullopt; };
        QSignalSpy saved(&capture, &ClientCapture::CaptureSaved);
        const QString file = capture.CaptureWindow(&window);
        EXPECT_EQ(file, c.file.isEmpty() ? QString() : folder + QLatin1Char('/') + c.file);
        EXPECT_EQ(saved.size(), c.file.isEmpty() ? 0 : 1);
        if (c.pagesAfter > 0) {
            EXPECT_EQ(popplerPages(file), c.pagesAfter);
        }
        if (c.size.isValid()) {  // read back; a second picture takes the next page name
            EXPECT_EQ(QImage(file).size(), c.size);
            EXPECT_EQ(capture.CaptureWindow(&window), folder + "/JV001-2.PNG");
        }
    }
    ClientCapture unsaved;  // a document not saved yet: nothing is asked nor kept
    unsaved.setAttachmentFolder(QDir::tempPath());
    unsaved.crop = [](const QImage&) { ADD_FAILURE() << "asked to crop"; return std::optional<QRect>(); };
    EXPECT_EQ(unsaved.CaptureWindow(&window), QString());
    EXPECT_EQ(scriptedMessages().shown.last().text, "บันทึกเอกสารก่อน แล้วจึงจับภาพเก็บไว้กับเอกสาร");
}

// The crop band by keyboard: arrows move it whole and keep it on the picture, Shift+arrows
// size it, Ctrl+A takes the whole picture; Enter keeps, Escape gives up.
TEST(ClientCapture, CropBandFollowsTheKeyboard)
{
    const QImage picture(500, 400, QImage::Format_RGB32);  // a step is 10 pixels
    const struct {
        QRect start;
        QList<QKeyCombination> keys;
        QRect expected;
    } cases[] = {{{100, 100, 50, 50}, {Qt::Key_Right, Qt::Key_Down, Qt::Key_Down}, {110, 120, 50, 50}},
        {{5, 5, 50, 50}, {Qt::Key_Left, Qt::Key_Up}, {0, 0, 50, 50}}, {{480, 10, 20, 20}, {Qt::Key_Right}, {480, 10, 20, 20}},
        {{100, 100, 50, 50}, {Qt::SHIFT | Qt::Key_Right, Qt::SHIFT | Qt::Key_Up}, {100, 100, 60, 40}},
        {{100, 100, 5, 5}, {Qt::SHIFT | Qt::Key_Left}, {100, 100, 5, 5}}, {{100, 100, 50, 50}, {Qt::CTRL | Qt::Key_A}, {0, 0, 500, 400}}};
    for (const auto& c : cases) {
        CropDialog dialog(picture, 1);
        dialog.show();
        dialog.view()->setSelection(c.start);
        for (QKeyCombination key : c.keys)
            QTest::keyClick(dialog.view(), key.key(), key.keyboardModifiers());
        EXPECT_EQ(dialog.view()->selection(), c.expected) << c.keys.size();
        QTest::keyClick(dialog.view(), Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
    }
    CropDialog dialog(picture, 0);
    dialog.show();
    QTest::keyClick(dialog.view(), Qt::Key_Escape);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

} // namespace
