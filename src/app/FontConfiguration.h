#pragma once

#include <thread>

namespace aerolith {

/// Reads the desktop's font configuration on a thread of its own while the main thread has other things to
/// do. Qt reads it itself at the first text, unless it has been read.
class FontConfiguration
{
public:
    FontConfiguration();
    FontConfiguration(const FontConfiguration&) = delete;
    FontConfiguration& operator=(const FontConfiguration&) = delete;
    /// Waits for the end of the reading.
    ~FontConfiguration();

private:
    std::thread m_reader;
};

} // namespace aerolith
