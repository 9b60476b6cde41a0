#pragma once

namespace qd8 {

// Registers the forms this build of the workbench has, under the command aliases (and
// special launch values) that open them. Controls of later modules add theirs here.
void registerWorkbenchForms();

} // namespace qd8
