#pragma once

#include "reports/ReportCriteria.h"
#include "widgets/HostedControl.h"

#include <memory>

class QComboBox;

namespace qd8 {

// The criteria screen of a report: one line per criterion of the report group
// (QD8VReportFilter, in TRpFSort order), the user's favourites above them, Preview and
// Close below. The criteria become one condition added to the host's query; the host prints.
//
// Keys: Enter moves to the next box, F2 picks from the criterion's quick form (a list
// criterion adds the pick), F3 on a date offers the relative dates, F4 its calendar, F5 or
// Ctrl+Enter previews, Esc closes.
class ReportFilter : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(int RLID READ RLID WRITE setRLID)

public:
    explicit ReportFilter(QWidget* parent = nullptr);
    ~ReportFilter() override;

    // The report group whose criteria are shown; the host's own values in ReportCriteria's
    // stored form ("FIELD=value;!FIELD=value", "!" locks the criterion: shown, not
    // changeable, never kept in a favourite); the SELECT the condition is added to (see
    // ReportCriteria::statement); the session objects (databases and user are taken from
    // the data object). Reads the screen at once: the user's default favourite, else the
    // criteria last used, else the defaults, then the host's values over them.
    void SetFirst(const QString& iREPORTGROUP, const QString& iParamList, const QString& TableQuery, std::shared_ptr<DataObject> iDataObj,
        std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj);

    // The language of the screen and of the criteria sentence: 0 Thai (Buddhist-era
    // dates), else English. The control's own, independent of the user's setting.
    int RLID() const;
    void setRLID(int languageId);

    // The day relative dates count from; today unless set.
    void setToday(QDate today);

    // The criteria as the screen holds them.
    const ReportCriteria& criteria() const;
    // The favourite in use, "" for none.
    QString favoriteName() const;
    // The box of a criterion (box 1: a range's upper end); nullptr out of range.
    QWidget* editor(int criterion, int box = 0) const;
    QComboBox* favoriteBox() const;

public Q_SLOTS:
    // Reads the criteria and favourites again and shows them as SetFirst does.
    void Refresh() override;
    // Checks the criteria (a required one blank, a number or date that is none, a value
    // holding a quote: said in a message, nothing raised), remembers them as the user's
    // last, and raises PreviewAction. False when refused.
    bool Preview();
    // Raises CloseAction.
    void Close();
    // Keeps the criteria under a name asked for (a favourite of that name is replaced after a question).
    void saveFavorite();
    void renameFavorite();
    void deleteFavorite();
    // Makes the favourite in use the user's default, or no longer the default.
    void toggleDefaultFavorite();
    // Loads a favourite by name; the defaults for "" . False when there is none of that name.
    bool loadFavorite(const QString& name);

Q_SIGNALS:
    // SQLStatement: TableQuery with the condition; Condition: the condition alone ("" for
    // none); CriteriaText: the criteria as the report's heading says them, in RLID's
    // language; FavoriteName: the favourite in use, "" for none.
    void PreviewAction(const QString& SQLStatement, const QString& Condition, const QString& CriteriaText, const QString& FavoriteName);
    void CloseAction();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
