#include "widgets/ExportMenu_p.h"

#include "foundation/Language.h"
#include "foundation/Services.h"

#include <QAbstractButton>
#include <QDir>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace qd8 {

ExportMenu::ExportMenu(QAbstractButton* button, QWidget* scope, std::function<void(TableExport::Format)> run)
    : m_button(button)
    , m_menu(new QMenu(button))
{
    m_xlsx = m_menu->addAction(QString());
    m_csv = m_menu->addAction(QString());
    m_xlsx->setObjectName(QStringLiteral("actExportXlsx"));
    m_csv->setObjectName(QStringLiteral("actExportCsv"));
    m_xlsx->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
    m_xlsx->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    scope->addAction(m_xlsx);
    button->setObjectName(QStringLiteral("btnExport"));
    if (auto* tool = qobject_cast<QToolButton*>(button)) {
        tool->setPopupMode(QToolButton::InstantPopup);
        tool->setMenu(m_menu);
    } else if (auto* push = qobject_cast<QPushButton*>(button)) {
        push->setAutoDefault(false);
        push->setMenu(m_menu);
    }
    QObject::connect(m_xlsx, &QAction::triggered, button, [run] { run(TableExport::Format::Xlsx); });
    QObject::connect(m_csv, &QAction::triggered, button, [run] { run(TableExport::Format::Csv); });
}

void ExportMenu::word(int languageId)
{
    m_button->setText(inLanguage(languageId, "ส่งออก", "Export"));
    m_button->setAccessibleName(m_button->text());
    m_menu->setAccessibleName(m_button->text());
    m_xlsx->setText(inLanguage(languageId, "ส่งออกเป็น Excel (XLSX)", "Export to Excel (XLSX)"));
    m_csv->setText(inLanguage(languageId, "ส่งออกเป็น CSV", "Export to CSV"));
    m_button->setToolTip(m_xlsx->text() + QStringLiteral(" (") + m_xlsx->shortcut().toString(QKeySequence::NativeText) + u')');
}

QString ExportMenu::askFile(TableExport::Format format, const QString& name) const
{
    const bool csv = format == TableExport::Format::Csv;
    const QString suffix = csv ? QStringLiteral(".csv") : QStringLiteral(".xlsx");
    return askFileToWrite((csv ? m_csv : m_xlsx)->text(), QDir::home().filePath(name + suffix), suffix,
        csv ? QStringLiteral("CSV (*.csv)") : QStringLiteral("Excel (*.xlsx)"));
}

} // namespace qd8
