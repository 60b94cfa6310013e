// The main function of the test programs that show screens.

#include "tests/support/testquestions.h"

#include "forms/application.h"

#include "host/process.h"

#include <gmock/gmock.h>

namespace {

// The process would be gone: what waits behind the event doesn't see its end as a failure of its own.
class TestApplication final : public forms::Application {
public:
    using Application::Application;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return Application::notify(receiver, event);
        } catch (const ProcessEnd &) {
            return true;
        }
    }
};

// What the offscreen platform can't do it says at each window.
QtMessageHandler defaultHandler = nullptr;

void withoutPlatform(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(u"This plugin does not support"))
        defaultHandler(type, context, message);
}

} // namespace

int main(int argc, char **argv)
{
    // As the program does: else the first child of all would keep what its test has set for every later one.
    host::rememberEnvironment();
    testing::InitGoogleMock(&argc, argv);
    defaultHandler = qInstallMessageHandler(&withoutPlatform);
    TestApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
