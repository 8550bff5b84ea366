#include "model/SignalHistoryList.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace aerolith {

static_assert(std::is_trivially_copyable_v<SignalHistory>, "slots of a block are raw memory until written");

/// Samples written once, front to back, behind their header in one piece of memory. A slot belongs to the
/// list that claimed it and is never written again.
class SignalHistoryList::Block : public QSharedData
{
public:
    [[nodiscard]] static QExplicitlySharedDataPointer<Block> make(qsizetype capacity)
    {
        void* memory =
            ::operator new(sizeof(Block) + static_cast<std::size_t>(capacity) * sizeof(SignalHistory));
        return QExplicitlySharedDataPointer(new (memory) Block(capacity));
    }

    static void operator delete(void* memory) { ::operator delete(memory); }

    [[nodiscard]] SignalHistory* slots() { return reinterpret_cast<SignalHistory*>(this + 1); }

    /// Writes the slot at `end`; false when the block is full or another list has gone on from there.
    bool extend(qsizetype end, const SignalHistory& sample)
    {
        if (end == m_capacity || !m_used.compare_exchange_strong(end, end + 1)) {
            return false;
        }
        std::construct_at(slots() + end, sample);
        return true;
    }

    /// The first samples of a block that no list sees yet.
    void fill(const_iterator begin, const_iterator end)
    {
        std::uninitialized_copy(begin, end, slots());
        m_used = end - begin;
    }

private:
    static void* operator new(std::size_t /*size*/, void* memory) { return memory; }

    explicit Block(qsizetype capacity) : m_capacity(capacity) {}

    qsizetype m_capacity;
    std::atomic<qsizetype> m_used{0};
};

SignalHistoryList::SignalHistoryList() = default;
SignalHistoryList::SignalHistoryList(const SignalHistoryList& other) = default;
SignalHistoryList::SignalHistoryList(SignalHistoryList&& other) noexcept = default;
SignalHistoryList& SignalHistoryList::operator=(const SignalHistoryList& other) = default;
SignalHistoryList& SignalHistoryList::operator=(SignalHistoryList&& other) noexcept = default;
SignalHistoryList::~SignalHistoryList() = default;

SignalHistoryList::SignalHistoryList(QExplicitlySharedDataPointer<Block> block, qsizetype begin,
                                     qsizetype size)
    : m_block(std::move(block)), m_begin(begin), m_size(size)
{
}

SignalHistoryList SignalHistoryList::appended(const SignalHistory& sample, qint64 limit) const
{
    const qsizetype kept = std::clamp<qint64>(limit, 0, m_size + 1);
    if (kept == 0) {
        return {};
    }
    if (m_block && m_block->extend(m_begin + m_size, sample)) {
        return {m_block, m_begin + m_size + 1 - kept, kept};
    }
    // Room for as many again: on the average a sample is copied once more in its life.
    auto block = Block::make(2 * kept);
    block->fill(end() - (kept - 1), end());
    block->extend(kept - 1, sample);
    return {std::move(block), 0, kept};
}

SignalHistoryList::const_iterator SignalHistoryList::begin() const
{
    return m_block ? m_block->slots() + m_begin : nullptr;
}

SignalExtremes signalExtremes(const SignalHistoryList& history)
{
    const auto [weakest, strongest] =
        std::minmax_element(history.begin(), history.end(),
                            [](const SignalHistory& a, const SignalHistory& b) { return a.rssi < b.rssi; });
    return {.weakest = weakest->rssi, .strongest = strongest->rssi};
}

} // namespace aerolith
