#pragma once

#include <QString>

namespace qd8 {

// Types keys into the widget that has the focus, as the suite's key-string notation
// writes them: plain characters; "+" Shift, "^" Ctrl, "%" Alt for the next key or the
// group in parentheses ("^C", "+(ab)"); "~" Enter; braces for named keys and repeats
// ("{TAB}", "{F2}", "{DOWN 3}", "{+}"). With `wait` the keys are delivered before the call
// returns, otherwise they are queued. Malformed strings and a missing focus widget are
// ignored, as the suite ignores errors here.
void SendKeys(const QString& keys, bool wait = false);

} // namespace qd8
