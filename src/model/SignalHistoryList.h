#pragma once

#include "model/SignalHistory.h"

#include <QSharedData>

namespace aerolith {

/// Samples of one access point, oldest first. An immutable value that is cheap to copy and cheap to lengthen:
/// a list and the longer one made from it see the same block of samples, each its own stretch, because every
/// scan cycle lengthens every history while views still hold the one before. Copies may be read on any
/// thread.
class SignalHistoryList
{
public:
    using const_iterator = const SignalHistory*;

    SignalHistoryList();
    SignalHistoryList(const SignalHistoryList& other);
    SignalHistoryList(SignalHistoryList&& other) noexcept;
    SignalHistoryList& operator=(const SignalHistoryList& other);
    SignalHistoryList& operator=(SignalHistoryList&& other) noexcept;
    ~SignalHistoryList();

    /// This list with one more sample, without the oldest that exceed `limit`; below 0 it counts as 0.
    [[nodiscard]] SignalHistoryList appended(const SignalHistory& sample, qint64 limit) const;

    [[nodiscard]] qsizetype size() const { return m_size; }

    [[nodiscard]] bool isEmpty() const { return m_size == 0; }

    [[nodiscard]] const_iterator begin() const;

    [[nodiscard]] const_iterator end() const { return begin() + m_size; }

    /// Only when not empty.
    [[nodiscard]] const SignalHistory& first() const { return *begin(); }

    /// Only when not empty.
    [[nodiscard]] const SignalHistory& last() const { return *(end() - 1); }

    /// Only for an index from 0 to size() - 1.
    [[nodiscard]] const SignalHistory& operator[](qsizetype index) const { return begin()[index]; }

private:
    class Block;

    SignalHistoryList(QExplicitlySharedDataPointer<Block> block, qsizetype begin, qsizetype size);

    QExplicitlySharedDataPointer<Block> m_block;
    qsizetype m_begin = 0;
    qsizetype m_size = 0;
};

/// Of the RSSI of a history, in dBm.
struct SignalExtremes
{
    qint64 weakest = 0;
    qint64 strongest = 0;
};

/// Only of a history that is not empty.
[[nodiscard]] SignalExtremes signalExtremes(const SignalHistoryList& history);

} // namespace aerolith
