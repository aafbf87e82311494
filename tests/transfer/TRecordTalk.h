// Lines of a digital transfer, for transcripts that a test writes itself.
#pragma once

#include "tests/transfer/Transcript.h"
#include "tests/transfer/TransferTest.h"

#include <string>

namespace transfertest {

inline std::string Sends(const std::string& line) {
    return ">" + Framed(line) + "\n";
}
inline std::string Says(const std::string& line) {
    return "<" + Framed(line) + "\n";
}

inline const std::string Ack = Says("T204000000");
inline const std::string Nak = Says("T204000001");
inline const std::string End = Sends("T9030000");

inline std::string Hello(int protocol) {
    return Sends("T00700002" + std::to_string(protocol) + "030000");
}
/// A protocol 0 dialogue up to the place where data begin.
inline std::string Opening(const std::string& openingMessage) {
    return Hello(0) + Ack + Sends("T204000022") + Says("T207000023010203") + ">T20B000021" + AnyStamp + "\n" +
           Ack + Sends(openingMessage) + Ack;
}
/// A read of the hardware up to its first record.
inline std::string HardwareOpening() {
    return Hello(0) + Nak + Hello(1) + Nak + Hello(2) + Ack + Sends("T2060000320480") + Ack +
           Sends("T204000033") + Says("T20500003370") + Sends("T204000031");
}
inline std::string DataRecord(const std::string& text) {
    std::string line = Text(wxString::Format("T1%02X0000", static_cast<int>(text.size()) + 3));
    for (const char c : text)
        line += Text(wxString::Format("%02X", static_cast<int>(static_cast<unsigned char>(c))));
    return Says(line);
}
/// A complete read of the hardware from a radio of that serial number.
inline std::string HardwareOf(const std::string& serial) {
    return HardwareOpening() + DataRecord(serial) + Sends("T204000000") + DataRecord("Board 3") +
           Sends("T204000000") + Says("T9030000");
}

/// A transcript up to the program's nth line, counted from 0, or empty if it has no such line.
inline std::string UpToProgramLine(const Transcript& whole, int n) {
    std::string part;
    for (const std::string& line : whole.Lines()) {
        part += line + "\n";
        if (line.starts_with(">") && n-- == 0)
            return part;
    }
    return {};
}

/// The states in which protocol 2 writes two rows, in the order of the program's lines.
inline constexpr int WriteStates[] = {-10, -10, -10, -9, -8, -5, -4, -3, 1, 3};

} // namespace transfertest
