#pragma once

#include "foundation/DateText.h"

#include <QList>
#include <QString>
#include <QVariant>
#include <Qt>
#include <optional>

namespace qd8 {

// The value types of the editors, one per type word of the metadata ("TEXT", "NUMBER"...).
enum class GridColumnType {
    Text,
    Number,
    AbsNumber,   // a number that may not be negative
    AutoNumber,  // assigned by the database, never edited
    Date,
    DateTime,
    Time,
    YesNo,       // a check box storing 1/0
    Check,       // the same as YesNo under another word
    LabelList,   // a choice of labels, each standing for a code
    Color        // a colour number (red + green*256 + blue*65536)
};

// One entry of a label list: the code kept in the table and the label the user sees.
struct GridLabel {
    QString code;
    QString label;
    bool operator==(const GridLabel&) const = default;
};

// Why a value typed by the user was not taken.
enum class GridInputProblem { None, NotANumber, Negative, NotADate, NotADateTime, NotATime, NotAColor };

// One column of the editing grid: how it is titled, sized and aligned, what type its cells
// hold and whether they may be changed. Cells are kept as stored text (the canonical form
// of the type: "1234.5", "2026-01-31", a label list's code, "1"/"0"); the conversions
// between stored text, shown text, typed text and values live here, one place per type.
class GridColumn {
public:
    QString caption;
    int width = 1440;                  // twips; 0 hides the column
    GridColumnType type = GridColumnType::Text;
    int decimals = 0;                  // shown (and kept, when typed) for numbers
    Qt::Alignment alignment;           // cells; none given: numbers right, check boxes centred, the rest left
    Qt::Alignment captionAlignment;    // title; none given: as the cells
    QList<GridLabel> labels;           // LabelList columns
    bool editable = true;              // cells of rows that came from the table may be changed
    bool newRowsEditable = true;       // cells of rows added in the grid may be filled in

    // A column as the metadata describes it. An unknown or empty type word gives a text
    // column; Alignment is a code of alignmentFromCode. CanEdit false keeps loaded rows as
    // they are but lets a row added in the grid be filled in (a key is typed once).
    static GridColumn fromDefinition(const QString& caption, int width, const QString& typeWord,
                                     int decimals = 0, int alignment = -1,
                                     const QString& labelList = {}, bool canEdit = true);

    // "TEXT", "NUMBER", ... in any case and with blanks around; nothing for other words.
    static std::optional<GridColumnType> typeFromWord(QStringView word);
    static QString typeWord(GridColumnType type);

    // A label list is a comma list of entries. An entry "code;label" names its code; an
    // entry without ";" stands for its position from 0, so "No,Yes" gives 0 = No, 1 = Yes.
    static QList<GridLabel> parseLabelList(const QString& labelList);

    // 0 left, 1 right, 2 centre; any other code leaves the alignment to the type.
    static Qt::Alignment alignmentFromCode(int code);

    bool isCheck() const { return type == GridColumnType::YesNo || type == GridColumnType::Check; }
    bool isNumeric() const;
    Qt::Alignment cellAlignment() const;
    Qt::Alignment titleAlignment() const;
    bool canEdit(bool newRow) const;

    // The text a person sees (and TextMatrix gives): numbers with their decimals and digit
    // grouping, labels for codes, "Yes"/"No", dates as dd/MM/yyyy with the year in `era`.
    QString displayText(const QString& stored, DateEra era) const;
    // The text an editor starts with: as shown, without digit grouping.
    QString editText(const QString& stored, DateEra era) const;
    // The value (GetValue): text as is; a label list's code; yes/no as 1/0; whole numbers of
    // a column without decimals as qlonglong, other numbers as Currency (double beyond four
    // decimals); QDate/QDateTime/QTime; a colour number. An empty cell of any type but text
    // gives a null value (yes/no gives 0).
    QVariant value(const QString& stored) const;

    // Stored text for a value handed over by code (SetValue, rows loaded from the table).
    // Values that do not fit the type are kept as they are, never dropped.
    QString storedFromValue(const QVariant& value) const;
    // Stored text for a text set by code (TextMatrix): shown or stored forms both read,
    // labels before codes, two-digit years in `era`. Unreadable text is kept as it is.
    QString storedFromText(const QString& text, DateEra era) const;
    // Stored text for a text the user typed: strict, numbers rounded to the decimals shown,
    // dates read as DateText reads them in the era shown. An empty text is taken (blank
    // checks belong to the host).
    GridInputProblem parseInput(const QString& text, QString& stored, DateEra era) const;

    static QString problemText(GridInputProblem problem, int languageId);
    // The label of a code, or the code itself when the list does not hold it.
    QString labelOf(const QString& code) const;
};

} // namespace qd8
