#pragma once

#include "update/Appcast.h"

#include <QString>

#include <variant>

/// What the user is to see of update checking, one of these at a time.
namespace aerolith {

/// Nothing.
struct UpdateIdle
{
};

struct UpdateChecking
{
};

struct UpdateUpToDate
{
};

struct UpdateAvailable
{
    AppcastItem item;
};

struct UpdateDownloading
{
    AppcastItem item;
    /// Bytes, of item.length.
    qint64 received = 0;
};

struct UpdateDownloaded
{
    AppcastItem item;
    QString path;
};

struct UpdateFailed
{
    enum class Step
    {
        check,
        download
    };

    Step step;
    Error error;
};

using UpdateState = std::variant<UpdateIdle, UpdateChecking, UpdateUpToDate, UpdateAvailable,
                                 UpdateDownloading, UpdateDownloaded, UpdateFailed>;

} // namespace aerolith
