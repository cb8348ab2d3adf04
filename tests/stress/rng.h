#pragma once

#include <QString>

#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace dbr::stress {

// The only source of choices in a run, so that its seed replays it.
class Rng
{
public:
    explicit Rng(std::uint32_t seed)
        : m_engine(seed)
    {}

    // From 0 to count - 1; 0 when count isn't positive.
    int below(int count) { return count > 0 ? int(m_engine() % unsigned(count)) : 0; }
    bool percent(int chance) { return below(100) < chance; }

    template<typename T>
    const T& pick(const std::vector<T>& items)
    {
        return items[std::size_t(below(int(items.size())))];
    }

    // Mostly small and sometimes valid, else negative or far out of range.
    int index()
    {
        static const std::vector<int> odd{-1, -2, 100, std::numeric_limits<int>::max(),
                                          std::numeric_limits<int>::min()};
        return percent(70) ? below(6) : pick(odd);
    }

    QString text()
    {
        static const std::vector<QString> texts{
            QString(),
            QStringLiteral("x"),
            QStringLiteral("two words"),
            QStringLiteral("%1 %2"),
            QStringLiteral("Grüße \u2603"),
            QStringLiteral("a\nb"),
            QString(300, QLatin1Char('w')),
        };
        return pick(texts);
    }

private:
    std::mt19937 m_engine;
};

} // namespace dbr::stress
