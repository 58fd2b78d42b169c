// SPDX-License-Identifier: MIT
#include "app/program/ProgramInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QVariantMap>
#include <array>
#include <cstdlib>

#include "app/program/BusNames.h"
#include "support/Child.h"

namespace {

/// The one program on a bus of its own, before what macros there are is known.
class ProgramInstanceTest : public testing::Test {
  protected:
    ProgramInstanceTest() {
        EXPECT_TRUE(eventually([this] { return contentOf(m_folder.file("address")).ends_with('\n'); }));
        const std::string address = contentOf(m_folder.file("address"));
        setenv("DBUS_SESSION_BUS_ADDRESS", address.substr(0, address.find('\n')).c_str(), 1);
        setenv("XDG_RUNTIME_DIR", m_folder.path().c_str(), 1);
    }

    void start(std::chrono::milliseconds patience) {
        instance.emplace(patience);
        ASSERT_TRUE(instance->claim());
        instance->serve([this](const Errand& /*errand*/) {
            ++runs;
            return Result<void, Refusal>();
        });
    }
    QDBusPendingCall call(const char* method, const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(bus::name, bus::path, bus::macros, QString::fromLatin1(method));
        message.setArguments(arguments);
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("caller"))
            .asyncCall(message);
    }
    static void await(const QDBusPendingCall& call) {
        ASSERT_TRUE(eventually([&call] {
            QCoreApplication::processEvents();
            return call.isFinished();
        }));
    }
    /// One that needs the library and waits for it: what was asked after it has been done.
    QDBusPendingCall waitingPlay() {
        const QDBusPendingCall play = call("PlayMacro", {QStringLiteral("Greeting"), QVariantMap()});
        await(call("Play", {QVariantMap()}));
        EXPECT_EQ(runs, 1);
        EXPECT_FALSE(play.isFinished());
        return play;
    }

    std::optional<ProgramInstance> instance;
    int runs = 0;

  private:
    TemporaryFolder m_folder;
    const Child m_daemon{{"dbus-daemon", "--session", "--nofork", "--print-address=1"},
                         {.outputFile = m_folder.file("address")}};
    std::string m_name = "test";
    std::array<char*, 2> m_arguments = {m_name.data(), nullptr};
    int m_count = 1;
    QCoreApplication m_application{m_count, m_arguments.data()};
};

TEST_F(ProgramInstanceTest, whatHasWaitedTooLongIsNotDoneLater) {
    start(std::chrono::milliseconds(0));
    const QDBusPendingCall play = waitingPlay();
    instance->serveLibrary();
    await(play);
    EXPECT_EQ(play.error().name().toStdString(), bus::notNow.toStdString());
    EXPECT_EQ(play.error().message().toStdString(), "The macro folder was out of reach for too long.");
    EXPECT_EQ(runs, 1);
    instance.reset();
}

}  // namespace
