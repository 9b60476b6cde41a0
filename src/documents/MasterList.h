#pragma once

#include "documents/ListControl.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace qd8 {

// The list of a master table (customers, products, suppliers, codes) with its in-use
// filter and a free-text search over the text columns; it opens the module's master form.
class MasterList : public ListControl {
    Q_OBJECT
    Q_PROPERTY(QString Filter1W READ Filter1W WRITE setFilter1W)

public:
    explicit MasterList(QWidget* parent = nullptr);
    ~MasterList() override;

    QString Filter1W() const { return m_def.Filter1W; }
    void setFilter1W(const QString& value) { m_def.Filter1W = value; }

    // Loads the definition of the command, builds the filter panel and reads the rows.
    void SetFilter(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
        std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
        const QString& iLCaption, const QString& iFCaption, bool iDoFilterEmployee = false);

    // " AND (a LIKE '%text%' OR b LIKE '%text%')" over the columns whose type code is "0";
    // "" when the trimmed text is empty or no column is text.
    static Sql searchCondition(const QString& text, const QString& columnList, const QString& typeList);

protected:
    Sql composeWhere() override;
    QString loadingCaption() const override;
    QStringList keyMembers(bool adding) const override;
    bool passesFormFunction() const override { return true; }
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPanel();
    void select();

    QWidget* m_panel = nullptr;
    QComboBox* m_inUse = nullptr;
    QCheckBox* m_applyFilter1 = nullptr;
    QLineEdit* m_filter1 = nullptr;
    QLineEdit* m_search = nullptr;
};

} // namespace qd8
