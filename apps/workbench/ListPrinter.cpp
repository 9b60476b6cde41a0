#include "ListPrinter.h"

#include "foundation/CommaList.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Values.h"

#include <QDateTime>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>

namespace qd8 {

namespace {

QString cellText(const QVariant& value, const DateLook& look)
{
    if (value.typeId() == QMetaType::QDate)
        return dateText(value.toDate(), look.era);
    if (value.typeId() == QMetaType::QDateTime)
        return dateTimeText(value.toDateTime(), look.era);
    return text(value);
}

} // namespace

ListPrinter::ListPrinter(const QString& title, const Sql& sql, const QString& captionList, const QString& connectionString,
    const DateLook& look, const QList<QPair<QString, QString>>& header)
    : m_title(title)
{
    QString fields;
    for (const auto& [caption, value] : header)
        fields += QStringLiteral("<tr><th align=\"left\">%1</th><td>%2</td></tr>").arg(caption.toHtmlEscaped(), value.toHtmlEscaped());
    if (!fields.isEmpty())
        fields = QStringLiteral("<table cellpadding=\"3\">%1</table><br/>").arg(fields);
    QStringList captions = splitList(captionList);
    // An editor's code list names its title and columns: "Title;X#Caption1;A#Caption2;B".
    if (captionList.startsWith(QLatin1String("Title;"))) {
        captions.clear();
        for (const QString& part : captionList.split(QLatin1Char('#'))) {
            const QString value = part.section(QLatin1Char(';'), 1);
            if (part.startsWith(QLatin1String("Title;")))
                m_title = value;
            else
                captions << value;
        }
    }
    QString table;
    if (!sql.text().isEmpty()) {
        table = QStringLiteral("<tr>");
        for (const QString& caption : captions)
            table += QStringLiteral("<th>%1</th>").arg(caption.toHtmlEscaped());
        table += QStringLiteral("</tr>");
        try {
            Connection c;
            c.open(connectionString);
            Recordset rs;
            rs.open(sql, c);
            for (; !rs.eof(); rs.moveNext(), ++m_rows) {
                table += QStringLiteral("<tr>");
                for (int column = 0; column < rs.fieldCount() && column < captions.size(); ++column)
                    table += QStringLiteral("<td>%1</td>").arg(cellText(rs.field(column), look).toHtmlEscaped());
                table += QStringLiteral("</tr>");
            }
        } catch (const DbError& error) {
            table += QStringLiteral("<tr><td colspan=\"%1\">%2</td></tr>")
                         .arg(captions.size())
                         .arg(error.report(look.languageId, QStringLiteral(": ")).toHtmlEscaped());
        }
        table = QStringLiteral("<p>%1</p><table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\">%2</table>")
                    .arg(m_rows)
                    .arg(table);
    }
    m_html = QStringLiteral("<html><body><h2>%1</h2><p>%2</p>%3%4</body></html>")
                 .arg(m_title.toHtmlEscaped(), dateTimeText(QDateTime::currentDateTime(), look.era), fields, table);
}

QString ListPrinter::html() const
{
    return m_html;
}

void ListPrinter::render(QPrinter& printer) const
{
    QTextDocument document;
    document.setHtml(m_html);
    document.print(&printer);
}

bool ListPrinter::exportPdf(const QString& file) const
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setDocName(m_title);
    render(printer);
    return true;
}

QWidget* ListPrinter::preview(QWidget* parent) const
{
    auto* window = new QWidget(parent, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(m_title);
    auto* printer = new QPrinter(QPrinter::HighResolution);
    auto* view = new QPrintPreviewWidget(printer, window);
    const ListPrinter copy = *this;
    QObject::connect(view, &QPrintPreviewWidget::paintRequested, window, [copy](QPrinter* target) { copy.render(*target); });
    auto* bar = new QToolBar(window);
    bar->addAction(QStringLiteral("Print..."), window, [copy, window] {
        QPrinter target(QPrinter::HighResolution);
        QPrintDialog dialog(&target, window);
        if (dialog.exec() == QDialog::Accepted)
            copy.render(target);
    });
    bar->addAction(QStringLiteral("Export PDF..."), window, [copy, window] {
        const QString file = QFileDialog::getSaveFileName(window, QStringLiteral("Export PDF"), copy.m_title + QStringLiteral(".pdf"),
            QStringLiteral("PDF (*.pdf)"));
        if (!file.isEmpty())
            copy.exportPdf(file);
    });
    bar->addAction(QStringLiteral("Close"), window, &QWidget::close);
    auto* layout = new QVBoxLayout(window);
    layout->addWidget(bar);
    layout->addWidget(view, 1);
    QObject::connect(window, &QObject::destroyed, [printer] { delete printer; });
    window->resize(900, 700);
    window->show();
    return window;
}

} // namespace qd8
