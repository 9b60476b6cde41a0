#pragma once

#include "navigation/DiagramLauncher.h"

namespace qd8 {

// The diagram of a module without a drawing: its commands in use laid out by themselves,
// a section per command group and kind (forms, reports, programs and web pages), in the
// catalogue's order; every module's when CommandGroup is "". Rights, greying and Lunch as
// in NUVDiagram. The tiles flow across the window and reflow when it is resized.
class NUVDiagram2 : public DiagramLauncher {
    Q_OBJECT

public:
    explicit NUVDiagram2(QWidget* parent = nullptr);

    // Kept for hosts that drive both diagrams alike; a diagram without a drawing reads
    // nothing from the company's drawing database.
    QString CustomConnectionString() const { return m_custom; }
    void setCustomConnectionString(const QString& value) { m_custom = value; }

public Q_SLOTS:
    // Refresh with the language and application database given; "" keeps the database.
    void Refresh(qint16 LanguageID, const QString& AppConnectionString, const QString& CustomConnectionString);
    void Refresh() override;

private:
    QString m_custom;
};

} // namespace qd8
