#pragma once

#include <functional>
#include <memory>

namespace qd8 {

class ListService;
class PermissionObject;
class SessionFunctions;

// The session objects a control creates for itself (the session function object, the list
// service, a command permission object per command). The database-backed ones are the
// default; a host may install its own (nullptr restores the default).
class SessionServices {
public:
    static SessionFunctions& sessionFunctions();
    static ListService& listService();
    static std::unique_ptr<PermissionObject> newCommandPermission();

    static void setSessionFunctions(SessionFunctions* functions);
    static void setListService(ListService* service);
    static void setCommandPermissionFactory(std::function<std::unique_ptr<PermissionObject>()> factory);
};

} // namespace qd8
