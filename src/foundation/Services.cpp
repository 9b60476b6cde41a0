#include "foundation/Services.h"

#include <stdexcept>

namespace qd8 {

namespace {

struct Slot {
    MessageService* messages = nullptr;
    PickerService* picker = nullptr;
    ShellService* shell = nullptr;
    ProgressService* progress = nullptr;
};

class SilentProgress final : public ProgressService {
public:
    void begin(const QString&, const QString&, qint64) override {}
    bool step(qint64) override { return true; }
    void end() override {}
};
Slot installed;
Slot defaults;

template <typename T>
T& pick(T* current, T* fallback, const char* what)
{
    if (current)
        return *current;
    if (fallback)
        return *fallback;
    throw std::logic_error(std::string("no ") + what + " service is installed");
}

} // namespace

MessageService& Services::messages() { return pick(installed.messages, defaults.messages, "message"); }
PickerService& Services::picker() { return pick(installed.picker, defaults.picker, "pick-list"); }
ShellService& Services::shell() { return pick(installed.shell, defaults.shell, "shell"); }
ProgressService& Services::progress()
{
    static SilentProgress silent;
    return installed.progress ? *installed.progress : defaults.progress ? *defaults.progress : silent;
}

void Services::setMessages(MessageService* service) { installed.messages = service; }
void Services::setPicker(PickerService* service) { installed.picker = service; }
void Services::setShell(ShellService* service) { installed.shell = service; }
void Services::setProgress(ProgressService* service) { installed.progress = service; }

void Services::setDefaults(MessageService* messages, PickerService* picker, ShellService* shell, ProgressService* progress)
{
    defaults = {messages, picker, shell, progress};
}

namespace {
thread_local QStringList operationNames;
} // namespace

OperationName::OperationName(const QString& name)
{
    operationNames.append(name);
}

OperationName::~OperationName()
{
    operationNames.removeLast();
}

QString OperationName::current()
{
    return operationNames.isEmpty() ? QString() : operationNames.last();
}

QString askFileToWrite(const QString& title, const QString& suggested, const QString& suffix, const QString& filter)
{
    const QString file = Services::picker().saveFileName(title, suggested, filter);
    return file.isEmpty() || file.endsWith(suffix, Qt::CaseInsensitive) ? file : file + suffix;
}

} // namespace qd8
