#include "database/LookupScope_p.h"

#include <QFileInfo>

namespace qd8 {

namespace {
thread_local LookupScope* activeScope = nullptr;
}

LookupScope::LookupScope()
    : m_outer(activeScope)
{
    if (!m_outer)
        activeScope = this;
}

LookupScope::~LookupScope()
{
    if (activeScope == this)
        activeScope = nullptr;
}

LookupScope* LookupScope::current()
{
    return activeScope;
}

bool fileExistsInScope(const QString& localPath)
{
    LookupScope* scope = LookupScope::current();
    if (!scope)
        return QFileInfo::exists(localPath);
    return scope->value<bool>(QStringLiteral("file\n") + localPath, [&] { return QFileInfo::exists(localPath); });
}

} // namespace qd8
