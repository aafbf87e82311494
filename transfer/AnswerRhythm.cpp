#include "transfer/AnswerRhythm.h"

#include <algorithm>
#include <utility>

void AnswerRhythm::Asked(Moment now) {
    m_asked = now;
}

void AnswerRhythm::Answered(Moment now) {
    if (const auto asked = std::exchange(m_asked, std::nullopt))
        m_last[m_count++ % m_last.size()] = now - *asked;
}

std::optional<AnswerRhythm::Moment> AnswerRhythm::Expected() const {
    if (!m_asked || m_count < m_last.size())
        return std::nullopt;
    auto sorted = m_last;
    std::sort(sorted.begin(), sorted.end());
    if (sorted.back() - sorted.front() >= Tolerance)
        return std::nullopt;
    return *m_asked + sorted[sorted.size() / 2];
}

AnswerRhythm::Part AnswerRhythm::Next(Moment now) const {
    const auto expected = Expected();
    if (!expected || now >= *expected + Watch)
        return {Moment::max(), true, false};
    if (now < *expected - Quiet)
        return {*expected - Quiet, true, true};
    if (now < *expected - Watch)
        return {*expected - Watch, true, false};
    return {*expected + Watch, false, false};
}
