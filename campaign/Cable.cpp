#include "campaign/Cable.h"

#include <algorithm>
#include <utility>

namespace Campaign {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

nanoseconds ByteTime(int baud) {
    return nanoseconds(10'000'000'000LL / baud);
}

} // namespace

Cable::Cable(VirtualTime& time, std::vector<Fault> faults)
    : m_time(time), m_faults(std::move(faults)), m_happened(m_faults.size()) {}

void Cable::Open(unsigned baud) {
    for (size_t i = 0; i < m_faults.size(); ++i)
        if (m_faults[i].kind == FaultKind::PortTaken) {
            MarkHappened(i);
            m_gone = true;
            return;
        }
    m_open = true;
    m_gone = false;
    m_arrived.clear();
    SetSpeed(baud);
}

void Cable::MarkHappened(size_t fault) {
    if (m_happened[fault])
        return;
    m_happened[fault] = true;
    m_ends.faultHappens(fault);
}

void Cable::SetSpeed(unsigned baud) {
    m_speed = static_cast<int>(baud);
}

void Cable::Write(std::string_view bytes) {
    if (!m_open || m_gone)
        return;
    m_waiting.insert(m_waiting.end(), bytes.begin(), bytes.end());
    m_lastByte = m_time.Now();
    if (!m_sending)
        SendNext();
}

void Cable::SendNext() {
    m_sending = !m_waiting.empty();
    if (!m_sending)
        return;
    m_time.At(m_time.Now() + ByteTime(m_speed), [this] {
        if (m_waiting.empty()) { // the port was closed meanwhile
            m_sending = false;
            return;
        }
        const uint8_t byte = m_waiting.front();
        m_waiting.pop_front();
        Carry(Side::ToRadio, byte);
        SendNext();
    });
}

void Cable::TakeFromRadio(std::string_view bytes) {
    m_ends.radioSends(bytes);
    for (const char byte : bytes)
        Carry(Side::ToProgram, static_cast<uint8_t>(byte));
}

std::string Cable::TakeArrived() {
    return std::exchange(m_arrived, {});
}

void Cable::Close() {
    if (!m_open)
        return;
    m_open = false;
    m_dropped += m_gone ? 0 : static_cast<int>(m_waiting.size());
    m_waiting.clear();
    m_arrived.clear();
    m_ends.radioIsLeft();
}

/// Takes a byte past the place at which the cable's faults are.
void Cable::Carry(Side side, uint8_t byte) {
    Direction& direction = Of(side);
    const int number = direction.count++;
    m_lastByte = m_time.Now();
    int copies = 1;
    const Fault* noiseAfter = nullptr;
    for (size_t i = 0; i < m_faults.size(); ++i) {
        const Fault& fault = m_faults[i];
        if (fault.at != number || fault.side != side || PlaceOf(fault.kind) != Place::Byte)
            continue;
        MarkHappened(i);
        switch (fault.kind) {
        case FaultKind::Lost:
            direction.lose = std::max(direction.lose, fault.value);
            break;
        case FaultKind::Doubled:
            ++copies;
            direction.spoilt = true;
            break;
        case FaultKind::Changed:
            byte = static_cast<uint8_t>(byte ^ fault.value);
            direction.spoilt = true;
            break;
        case FaultKind::Delayed:
            direction.heldUntil = std::max(direction.heldUntil, m_time.Now() + milliseconds(fault.value));
            break;
        case FaultKind::NoiseBefore:
            MakeNoise(side, fault);
            break;
        case FaultKind::NoiseAfter:
            noiseAfter = &fault;
            break;
        case FaultKind::Cut:
            direction.cut = direction.spoilt = true;
            break;
        case FaultKind::Unplugged:
            m_gone = true;
            break;
        case FaultKind::Restart:
            m_ends.radioRestarts();
            for (Direction& each : m_directions)
                each.spoilt = true;
            break;
        case FaultKind::Cancel:
            m_time.At(m_time.Now() + milliseconds(fault.value), m_ends.userCancels);
            break;
        default:
            break;
        }
    }
    if (direction.lose > 0) {
        --direction.lose;
        direction.spoilt = true;
        copies = 0;
    }
    for (int copy = 0; copy < copies; ++copy)
        Deliver(side, byte);
    if (noiseAfter)
        MakeNoise(side, *noiseAfter);
}

void Cable::MakeNoise(Side side, const Fault& fault) {
    Of(side).spoilt = true;
    Random random(static_cast<uint64_t>(fault.at) * 31 + static_cast<uint64_t>(fault.value));
    for (int i = 0; i < fault.value; ++i)
        Deliver(side, static_cast<uint8_t>(random.Below(256)));
}

void Cable::Deliver(Side side, uint8_t byte) {
    const Moment held = Of(side).heldUntil;
    // Equal moments too: a byte must not overtake one that was held until now.
    if (held >= m_time.Now() && held != Moment{})
        m_time.At(held, [this, side, byte] { Arrive(side, byte); });
    else
        Arrive(side, byte);
}

void Cable::Arrive(Side side, uint8_t byte) {
    if (Of(side).cut || m_gone)
        return;
    m_lastByte = m_time.Now();
    if (side == Side::ToRadio)
        m_ends.radioHears(byte, m_speed);
    else if (m_open) {
        const char character = static_cast<char>(byte);
        m_arrived += character;
        m_ends.programHears({&character, 1});
    }
}

void CablePort::open(const wxString&, unsigned int baudRate) {
    m_cable.Open(baudRate);
}

void CablePort::setBaudRate(unsigned int baudRate) {
    m_cable.SetSpeed(baudRate);
}

void CablePort::write(const wxString& text) {
    const wxScopedCharBuffer bytes = text.utf8_str();
    m_cable.Write({bytes.data(), bytes.length()});
}

bool CablePort::waitUntilWritten(int limitMs) {
    const Moment end = m_time.Now() + milliseconds(limitMs);
    while (!m_cable.IsWritten() && m_time.RunNext(end)) {
    }
    if (!m_cable.IsWritten())
        m_time.AdvanceTo(end);
    return m_cable.IsWritten();
}

wxString CablePort::takeReceived() {
    const std::string bytes = m_cable.TakeArrived();
    return wxString(bytes.data(), wxConvISO8859_1, bytes.size());
}

wxDateTime CableClock::Date() const {
    constexpr wxLongLong_t start = 1'767'225'600'000; // 1 January 2026, in milliseconds
    return wxDateTime(wxLongLong(start + m_time.Milliseconds()));
}

void CableClock::HandleEvents() {
    if (m_cancelled)
        *std::exchange(m_cancelled, nullptr) = true;
}

void CableClock::WaitForText(Moment end, wxChar /*lineEnd*/) {
    // Each byte that arrives ends a wait: a transfer of all rows takes some ten thousand.
    constexpr int most = 2'000'000;
    if (++m_waits > most)
        throw Endless{};
    while (!m_cable.HasArrived() && !m_cancelled)
        if (!m_time.RunNext(end)) {
            m_time.AdvanceTo(end);
            return;
        }
}

} // namespace Campaign
