#pragma once

#include <QList>

#include <chrono>

namespace tarvo {

/// How much data was used when, since the modem was plugged in; in memory only. However long that is, a bounded number
/// of samples is kept, at even distances.
class UsageHistory {
public:
    static constexpr qsizetype mostSamples = 512;

    struct Sample {
        std::chrono::seconds sincePlugIn{};
        double gigabytes = 0; ///< used this month by then

        bool operator==(const Sample &) const = default;
    };

    /// Adds a sample, unless the last one is too near.
    void add(std::chrono::seconds sincePlugIn, double gigabytes);
    void clear() { *this = {}; }
    const QList<Sample> &samples() const { return m_samples; }

private:
    QList<Sample> m_samples;
    std::chrono::seconds m_distance{1}; ///< between samples, at least
};

} // namespace tarvo
