#pragma once

#include "platform/DesktopServices.h"

#include <QList>
#include <QStringList>

namespace aerolith {

/// A login item that does as it is told, or refuses.
class FakeLoginItem : public LoginItem
{
public:
    [[nodiscard]] bool isEnabled() const override { return enabled; }

    [[nodiscard]] Failure setEnabled(bool wanted) override
    {
        ++calls;
        if (!refusal) {
            enabled = wanted;
        }
        return refusal;
    }

    bool enabled = false;
    Failure refusal;
    int calls = 0;
};

/// Notes what it was asked to open.
class FakeWorkspace : public Workspace
{
public:
    [[nodiscard]] Failure openUrl(const QUrl& url) override
    {
        urls.append(url);
        return refusal;
    }

    [[nodiscard]] Failure openFolder(const QString& path) override
    {
        folders.append(path);
        return refusal;
    }

    [[nodiscard]] Failure openSettings(SettingsPage page) override
    {
        pages.append(page);
        return refusal;
    }

    [[nodiscard]] Failure openDiagnostics() override
    {
        ++timesDiagnosed;
        return refusal;
    }

    [[nodiscard]] Failure diagnosticsObstacle() const override { return noDiagnostics; }

    QList<QUrl> urls;
    QStringList folders;
    QList<SettingsPage> pages;
    int timesDiagnosed = 0;
    Failure refusal;
    Failure noDiagnostics;
};

class FakeHostAddresses : public HostAddresses
{
public:
    [[nodiscard]] std::optional<QString> localIPv4Address() const override { return address; }

    std::optional<QString> address;
};

/// The desktop around a window, set by the test.
struct FakeDesktop
{
    [[nodiscard]] DesktopServices services()
    {
        return {.loginItem = loginItem, .workspace = workspace, .hostAddresses = hostAddresses};
    }

    FakeLoginItem loginItem;
    FakeWorkspace workspace;
    FakeHostAddresses hostAddresses;
};

} // namespace aerolith
