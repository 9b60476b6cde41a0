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
    using DiagramLauncher::Refresh;

public Q_SLOTS:
    void Refresh() override;
};

} // namespace qd8
