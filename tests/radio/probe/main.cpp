// radio-probe join NAME: looks for the network by a directed scan, tells "found", reads the password (a line,
// may be empty) from standard input and joins. radio-probe power on|off: switches the radio. Ends with 0, or
// with 1 and the error's description as the last line of standard error.

#include "platform/qt/StandardLog.h"
#include "plug/PluggedPlatform.h"

#include <QCoreApplication>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

using namespace aerolith;
using namespace Qt::StringLiterals;

Failure join(CWInterface& interface, const QByteArray& name)
{
    const auto found = interface.scanForNetworksWithSSID(name);
    if (!found.ok()) {
        return found.error();
    }
    if (found.value().isEmpty()) {
        return Error{u"The directed scan has found nothing"_s};
    }
    std::cout << "found" << std::endl;
    std::string password;
    std::getline(std::cin, password);
    return interface.associateToNetwork(found.value().first(), QString::fromStdString(password));
}

Failure run(CWInterface& interface, const QByteArray& command, const QByteArray& argument)
{
    if (command == "join") {
        return join(interface, argument);
    }
    if (command == "power") {
        return interface.setPower(argument == "on");
    }
    return Error{u"The commands are join and power"_s};
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    StandardLog log(stderr);
    const auto platform = plugPlatform({}, log);
    const auto interface = platform.value()->surroundings().wifiClient.interface();
    if (argc != 3 || interface == nullptr) {
        std::cerr << "two arguments and a Wi-Fi interface are needed\n";
        return 1;
    }
    if (const auto failure = run(*interface, argv[1], argv[2])) {
        std::cerr << failure->description.toStdString() << '\n';
        return 1;
    }
    return 0;
}
