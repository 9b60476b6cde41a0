#pragma once

#include <QStyledItemDelegate>

#include <functional>

class QKeyEvent;

namespace qd8 {

// Makes the editor of a cell of GridEditorModel from its type: a line edit for text,
// numbers, dates, times and colours (numbers take digits only, no minus for ABSNUMBER),
// a combo box of labels for a label list; none for AUTONUMBER and for check boxes, which
// the delegate draws centred and toggles itself (click or space).
//
// The grid is asked before an editor opens or a check box toggles (the edit gate), is told
// when Enter was pressed in an editor (after the value was committed) and is offered the
// function keys pressed in an editor, so a host can open a pick list from inside a cell.
class GridEditorDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using EditGate = std::function<bool(const QModelIndex& index)>;

    explicit GridEditorDelegate(QObject* parent = nullptr);

    void setEditGate(EditGate gate);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

signals:
    // Enter was pressed in an editor; its value has been offered to the model and it closed.
    void enterPressed();
    // A function key was pressed in an editor, after the editor's value was offered to the
    // model. Setting `consumed` closes the editor without committing again, so a value the
    // handler wrote into the cell stays.
    void functionKeyPressed(QKeyEvent* event, bool& consumed);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool isCheckCell(const QModelIndex& index) const;

    EditGate m_gate;
};

} // namespace qd8
