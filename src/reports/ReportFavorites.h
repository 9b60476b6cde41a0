#pragma once

#include <QList>
#include <QString>
#include <optional>

namespace qd8 {

class DataObject;

// A user's kept criteria of one report group.
struct ReportFavorite {
    qint64 id = 0;
    QString name;
    QString paramList;  // ReportCriteria's stored form, relative dates as words
    bool isDefault = false;
};

// The favourites of one user and report group in QD8TReportFavorite (company data), and the
// criteria the user last previewed with. Every change is one transaction; keys come from
// the running numbers ("QD8TReportFavorite"). Names are bound as parameters, so any text
// is a name. Failures are DbError.
class ReportFavorites {
public:
    // TRFvKind: what a row is.
    enum Kind { Favorite = 0, DefaultFavorite = 1, LastUsed = 2 };

    ReportFavorites(const QString& dataConnectionString, qint32 userId, const QString& reportGroup, DataObject* numbers = nullptr);

    // The named favourites in name order.
    QList<ReportFavorite> list() const;
    std::optional<ReportFavorite> defaultFavorite() const;
    // The criteria last used, "" when the user has none.
    QString lastUsed() const;

    // Keeps the criteria under the name, replacing a favourite of that name; its key.
    qint64 save(const QString& name, const QString& paramList);
    // False when another favourite holds the name already.
    bool rename(qint64 id, const QString& name);
    void remove(qint64 id);
    // Makes the favourite the user's default (0: none); the one before is a plain favourite again.
    void setDefault(qint64 id);
    void rememberLast(const QString& paramList);

private:
    std::optional<ReportFavorite> findByName(const QString& name) const;
    QList<ReportFavorite> read(const QString& condition) const;
    qint64 insert(const QString& name, const QString& paramList, Kind kind);

    QString m_connectionString;
    qint32 m_userId;
    QString m_group;
    DataObject* m_numbers;
};

} // namespace qd8
