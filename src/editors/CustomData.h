#pragma once

#include "editors/QuickGrid.h"

namespace qd8 {

// The user-defined code lists (remark texts, reasons for cancellation, shipping terms...):
// the quick form editor over the one shared table QD8TCustom1, each list told apart by
// its code (TCS1Type), the lists defined by QD8TCustomData and their columns by the rows
// of QD8TQuickField with TQFFTCusCode. Columns: "Code", hidden "OLDCODE" (the code as
// read: a changed code renames its row), the descriptions, "Show" ("No,Yes"). A row is
// always found by list and code together, so two lists may hold the same code; a code
// the list's document column still refers to is not deleted.
class CustomData : public QuickGrid {
    Q_OBJECT
    Q_PROPERTY(QString RemarkCaption READ RemarkCaption WRITE setRemarkCaption)
    Q_PROPERTY(int RemarkMode READ RemarkMode WRITE setRemarkMode)

public:
    explicit CustomData(QWidget* parent = nullptr);

    // What the lists are called in the selector and its pick list; "" shows "หมายเหตุ" /
    // "Remarks".
    QString RemarkCaption() const;
    void setRemarkCaption(const QString& caption);
    // The family of lists offered: the lists whose TCusMode is this.
    int RemarkMode() const { return m_remarkMode; }
    void setRemarkMode(int mode) { m_remarkMode = mode; }

protected:
    Catalogue catalogue() const override;
    QuickFormDefinition readDefinition(Connection& app, const QString& code) const override;
    void completeRow(Recordset& rs) override;
    void print() override;
    void changeEvent(QEvent* event) override;

private:
    QString m_remarkCaption;
    int m_remarkMode = 0;
};

} // namespace qd8
