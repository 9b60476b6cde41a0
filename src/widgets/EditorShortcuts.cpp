#include "widgets/EditorShortcuts_p.h"

#include "foundation/Language.h"

#include <QAction>
#include <QHash>
#include <QWidget>

namespace qd8 {

QKeySequence editorShortcut(const QString& buttonKey)
{
    static const QHash<QString, QKeySequence> keys = {
        {QStringLiteral("Add"), QKeySequence(Qt::CTRL | Qt::Key_N)},
        {QStringLiteral("Edit"), QKeySequence(Qt::CTRL | Qt::Key_E)},
        {QStringLiteral("Update"), QKeySequence(Qt::CTRL | Qt::Key_S)},
        {QStringLiteral("Cancel"), QKeySequence(Qt::Key_Escape)},
        {QStringLiteral("Delete"), QKeySequence(Qt::CTRL | Qt::Key_Delete)},
        {QStringLiteral("Print"), QKeySequence(Qt::CTRL | Qt::Key_P)},
    };
    return keys.value(buttonKey);
}

QString editorButtonText(const QString& buttonKey, int languageId)
{
    static const QHash<QString, QPair<const char*, const char*>> captions = {{QStringLiteral("Enter"), {"ตกลง", "Enter"}},
        {QStringLiteral("Help"), {"ช่วยเหลือ", "Help"}}, {QStringLiteral("Add"), {"เพิ่ม", "Add"}}, {QStringLiteral("Delete"), {"ลบ", "Delete"}},
        {QStringLiteral("Filter"), {"แสดงเฉพาะ", "Filter"}}, {QStringLiteral("Copy"), {"คัดลอก", "Copy"}}, {QStringLiteral("Edit"), {"แก้ไข", "Edit"}},
        {QStringLiteral("Update"), {"บันทึก", "Update"}}, {QStringLiteral("Cancel"), {"ยกเลิก", "Cancel"}}, {QStringLiteral("Close"), {"ปิด", "Close"}},
        {QStringLiteral("UnPass"), {"ไม่ผ่าน", "Unpass"}}, {QStringLiteral("Pass"), {"ผ่าน", "Pass"}}, {QStringLiteral("Check"), {"ตรวจสอบ", "Check"}},
        {QStringLiteral("Print"), {"พิมพ์", "Print"}}, {QStringLiteral("Default"), {"ค่าเริ่มต้น", "Default"}}};
    const auto found = captions.constFind(buttonKey);
    return found == captions.constEnd() ? buttonKey : inLanguage(languageId, found->first, found->second);
}

QString withShortcut(const QString& caption, const QKeySequence& keys)
{
    return keys.isEmpty() ? caption : caption + QStringLiteral(" (") + keys.toString(QKeySequence::NativeText) + QLatin1Char(')');
}

void bindEditorShortcut(QAction* action, const QString& buttonKey, QWidget* owner)
{
    const QKeySequence keys = editorShortcut(buttonKey);
    if (keys.isEmpty())
        return;
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    owner->addAction(action);
    const auto retitle = [action] {
        const QString tip = withShortcut(action->text(), action->shortcut());
        if (action->toolTip() != tip)
            action->setToolTip(tip);
    };
    retitle();
    // A caption given later (another language) keeps the key in the tip.
    QObject::connect(action, &QAction::changed, action, retitle);
}

} // namespace qd8
