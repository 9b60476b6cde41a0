#include "widgets/GridEditorDelegate_p.h"

#include "foundation/DateText.h"
#include "widgets/GridEditorModel.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpressionValidator>

namespace qd8 {

namespace {

const GridColumn* columnOf(const QModelIndex& index)
{
    const auto* model = qobject_cast<const GridEditorModel*>(index.model());
    return model ? &model->cellColumn(index.row(), index.column()) : nullptr;
}

QString placeholderFor(GridColumnType type, int languageId)
{
    switch (type) {
    case GridColumnType::Date: return datePattern(languageId);
    case GridColumnType::DateTime: return dateTimePattern(languageId);
    case GridColumnType::Time: return QStringLiteral("hh:mm");
    case GridColumnType::Color: return QStringLiteral("#RRGGBB");
    default: return {};
    }
}

} // namespace

GridEditorDelegate::GridEditorDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void GridEditorDelegate::setEditGate(EditGate gate)
{
    m_gate = std::move(gate);
}

bool GridEditorDelegate::isCheckCell(const QModelIndex& index) const
{
    const GridColumn* column = columnOf(index);
    return column && column->isCheck();
}

QWidget* GridEditorDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const GridColumn* column = columnOf(index);
    if (!column)
        return QStyledItemDelegate::createEditor(parent, option, index);
    if (column->isCheck() || column->type == GridColumnType::AutoNumber)
        return nullptr;
    // The host may refuse; no editor then means no edit.
    if (m_gate && !m_gate(index))
        return nullptr;

    QWidget* editor = nullptr;
    if (column->type == GridColumnType::LabelList) {
        auto* combo = new QComboBox(parent);
        combo->setFrame(false);
        for (const GridLabel& label : column->labels)
            combo->addItem(label.label, label.code);
        editor = combo;
    } else {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        line->setAlignment(column->cellAlignment());
        const auto* model = qobject_cast<const GridEditorModel*>(index.model());
        line->setPlaceholderText(placeholderFor(column->type, model ? model->languageId() : 0));
        if (column->type == GridColumnType::Number || column->type == GridColumnType::AbsNumber) {
            const QString pattern = column->type == GridColumnType::Number ? QStringLiteral("^-?[0-9,]*\\.?[0-9]*$")
                                                                            : QStringLiteral("^[0-9,]*\\.?[0-9]*$");
            line->setValidator(new QRegularExpressionValidator(QRegularExpression(pattern), line));
        }
        editor = line;
    }
    editor->setAccessibleName(column->caption.isEmpty() ? QStringLiteral("Cell") : column->caption);
    return editor;
}

void GridEditorDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findData(index.data(GridEditorModel::StoredRole).toString()));
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void GridEditorDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* combo = qobject_cast<QComboBox*>(editor)) {
        if (combo->currentIndex() >= 0)
            model->setData(index, combo->currentData(), GridEditorModel::ValueRole);
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(editor)) {
        model->setData(index, line->text(), Qt::EditRole);
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

void GridEditorDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!isCheckCell(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem panel = option;
    initStyleOption(&panel, index);
    const QWidget* widget = option.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();

    QStyleOptionViewItem check = panel;
    const QRect indicator = style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &check, widget);
    check.rect = QStyle::alignedRect(option.direction, Qt::AlignCenter, indicator.size(), option.rect);
    check.state &= ~QStyle::State_HasFocus;
    check.state |= panel.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off;

    panel.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    panel.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &panel, painter, widget);
    style->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter, widget);
}

bool GridEditorDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                                     const QModelIndex& index)
{
    if (!isCheckCell(index))
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    if (!(index.flags() & Qt::ItemIsUserCheckable))
        return false;

    bool toggle = false;
    switch (event->type()) {
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        toggle = mouse->button() == Qt::LeftButton && option.rect.contains(mouse->position().toPoint());
        break;
    }
    case QEvent::MouseButtonDblClick:
        return true;  // two clicks, each toggling on its release; never an editor
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        toggle = key == Qt::Key_Space || key == Qt::Key_Select;
        break;
    }
    default:
        break;
    }
    if (!toggle)
        return false;
    if (m_gate && !m_gate(index))
        return true;
    const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model->setData(index, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return true;
}

bool GridEditorDelegate::eventFilter(QObject* object, QEvent* event)
{
    auto* editor = qobject_cast<QWidget*>(object);
    if (editor && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            emit commitData(editor);
            emit closeEditor(editor, QAbstractItemDelegate::NoHint);
            emit enterPressed();
            return true;
        }
        if (key->key() >= Qt::Key_F1 && key->key() <= Qt::Key_F35) {
            emit commitData(editor);
            bool consumed = false;
            emit functionKeyPressed(key, consumed);
            if (consumed)
                emit closeEditor(editor, QAbstractItemDelegate::NoHint);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

} // namespace qd8
