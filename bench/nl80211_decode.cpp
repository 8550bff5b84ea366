// Decoding a dump of 1,000 access points against the user CPU time that `iw` takes to print the same dump.
// `iw` can only read from a kernel, so netlink_replay.cpp hands it the dump.

#include "CpuTime.h"
#include "platform/linux/nl80211/Messages.h"
#include "platform/linux/nl80211/Sightings.h"

#include <QFile>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#include <linux/netlink.h>
#include <linux/nl80211.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace aerolith;
using namespace aerolith::nl80211;

namespace {

constexpr int accessPoints = 1'000;

int printedAccessPoints = 0;

/// Where the address of the access point lies in a message of a dump.
qsizetype addressOffset(const QByteArray& message)
{
    qsizetype offset = 0;
    Bytes rest = bytesOf(message);
    const auto inEntry = [&](const Attribute& part) -> Failure {
        if (part.type == NL80211_BSS_BSSID) {
            offset = part.payload.data() - bytesOf(message).data();
        }
        return {};
    };
    const auto inMessage = [&](const Attribute& attribute) -> Failure {
        return attribute.type == NL80211_ATTR_BSS
                   ? visitAttributes(attribute.payload, attribute.owner, inEntry)
                   : Failure();
    };
    (void)visitMessages(
        rest, NL80211_CMD_NEW_SCAN_RESULTS, QLatin1StringView("message"), [] {}, inMessage);
    return offset;
}

/// The messages of the capture over and over, each with an address of its own.
QByteArray largeDump()
{
    QFile file(QStringLiteral(CAPTURE));
    if (!file.open(QIODevice::ReadOnly)) {
        std::perror(CAPTURE);
        std::abort();
    }
    const QByteArray capture = file.readAll();
    QByteArray dump;
    qsizetype at = 0;
    for (int number = 0; number < accessPoints; ++number) {
        nlmsghdr header;
        std::memcpy(&header, capture.constData() + at, sizeof header);
        QByteArray message = capture.mid(at, NLMSG_ALIGN(header.nlmsg_len));
        const qsizetype address = addressOffset(message);
        message[address + 4] = static_cast<char>(number >> 8);
        message[address + 5] = static_cast<char>(number);
        dump += message;
        at = (at + message.size()) % capture.size();
    }
    return dump;
}

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs `iw` on the dump in this file; its output goes to `output`. User CPU seconds of its process.
double runIw(const std::string& dumpFile, const std::string& output)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    std::array<std::string, 5> arguments{"iw", "dev", "wlan0", "scan", "dump"};
    std::array<char*, 6> argumentPointers{};
    std::transform(arguments.begin(), arguments.end(), argumentPointers.begin(),
                   [](std::string& argument) { return argument.data(); });
    std::array<std::string, 3> environment{"PATH=/usr/sbin:/sbin:/usr/bin:/bin", "LD_PRELOAD=" REPLAY_LIBRARY,
                                           "NETLINK_REPLAY=" + dumpFile};
    std::array<char*, 4> environmentPointers{};
    std::transform(environment.begin(), environment.end(), environmentPointers.begin(),
                   [](std::string& variable) { return variable.data(); });
    pid_t child = 0;
    const int failed =
        posix_spawnp(&child, "iw", &actions, nullptr, argumentPointers.data(), environmentPointers.data());
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    if (failed != 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "iw cannot be run\n");
        std::abort();
    }
    return seconds(usage.ru_utime);
}

/// From the bytes of the dump to the networks that a scan returns.
void decodeDump(benchmark::State& state)
{
    const QByteArray dump = largeDump();
    CpuTimer timer(state, "decode", accessPoints);
    for (auto _ : state) {
        qsizetype count = 0;
        timer.time([&] {
            const auto entries = decodeBssEntries(bytesOf(dump));
            count = sightings(entries.value(), BootTime::min(), BootTime::zero(), {}).size();
        });
        if (count != accessPoints) {
            state.SkipWithError("access points are missing");
            return;
        }
    }
}

void iwRuns(benchmark::State& state, const char* what, const QByteArray& dump)
{
    QTemporaryFile file;
    if (!file.open() || file.write(dump) != dump.size() || !file.flush()) {
        state.SkipWithError("the dump cannot be written");
        return;
    }
    const std::string name = file.fileName().toStdString();
    QTemporaryFile output;
    if (output.open()) {
        runIw(name, output.fileName().toStdString());
        printedAccessPoints = static_cast<int>(output.readAll().count("\tfreq: "));
    }
    CpuTimer timer(state, what, accessPoints);
    for (auto _ : state) {
        timer.count(runIw(name, "/dev/null"));
    }
}

void iwPrintsDump(benchmark::State& state)
{
    iwRuns(state, "print", largeDump());
}

/// What `iw` takes for itself, with nothing to print.
void iwStarts(benchmark::State& state)
{
    const int printed = printedAccessPoints;
    iwRuns(state, "start", {});
    printedAccessPoints = printed;
}

} // namespace

BENCHMARK(decodeDump)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(iwPrintsDump)->UseManualTime()->Iterations(100)->Unit(benchmark::kMillisecond);
BENCHMARK(iwStarts)->UseManualTime()->Iterations(100)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::printf("iw printed %d access points\n", printedAccessPoints);
    // The kernel knows the user time of a process by its ticks alone: no single run of `iw` tells it.
    const auto mean = [](const char* name) { return measured()[{name, accessPoints}].mean; };
    std::printf("decode / iw's user time: %.3f (%.3f without iw's start)\n", mean("decode") / mean("print"),
                mean("decode") / (mean("print") - mean("start")));
    return 0;
}
