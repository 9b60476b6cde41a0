#include "database/SessionServices.h"

#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/SessionFunctions.h"

namespace qd8 {

namespace {
SessionFunctions* installedFunctions = nullptr;
ListService* installedList = nullptr;
std::function<std::unique_ptr<PermissionObject>()> permissionFactory;
} // namespace

SessionFunctions& SessionServices::sessionFunctions()
{
    static DbSessionFunctions standard;
    return installedFunctions ? *installedFunctions : standard;
}

ListService& SessionServices::listService()
{
    static ListService standard;
    return installedList ? *installedList : standard;
}

std::unique_ptr<PermissionObject> SessionServices::newCommandPermission()
{
    return permissionFactory ? permissionFactory() : std::make_unique<DbPermissionObject>();
}

void SessionServices::setSessionFunctions(SessionFunctions* functions)
{
    installedFunctions = functions;
}

void SessionServices::setListService(ListService* service)
{
    installedList = service;
}

void SessionServices::setCommandPermissionFactory(std::function<std::unique_ptr<PermissionObject>()> factory)
{
    permissionFactory = std::move(factory);
}

} // namespace qd8
