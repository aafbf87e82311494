#include "robot/Hands.h"

#include <cctype>
#include <chrono>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <thread>
#include <vector>

namespace testbench {

namespace {

void Sleep(int ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(ms));
}

/// Splits "Ctrl+Shift+Tab" into {"Ctrl", "Shift", "Tab"}; a plus at the end is a key.
std::vector<std::string> Parts(const std::string& chord) {
    std::vector<std::string> parts;
    size_t begin = 0;
    for (size_t plus; (plus = chord.find('+', begin)) != std::string::npos && plus + 1 < chord.size();
         begin = plus + 1) {
        if (plus == begin) {
            break;
        }
        parts.push_back(chord.substr(begin, plus - begin));
    }
    parts.push_back(chord.substr(begin));
    return parts;
}

} // namespace

void Hands::Rest() const {
    Sleep(m_paceMs);
}

void Hands::Move(const wxPoint& screen) {
    m_desk.Pointer(screen);
    Rest();
}

void Hands::Push(int button) {
    m_desk.Button(static_cast<unsigned>(button), true);
    Rest();
}

void Hands::LetGo(int button) {
    m_desk.Button(static_cast<unsigned>(button), false);
    Rest();
}

void Hands::Click(const wxPoint& screen, int button) {
    Move(screen);
    Push(button);
    LetGo(button);
}

void Hands::DoubleClick(const wxPoint& screen, int button) {
    Move(screen);
    m_desk.DoubleClick(static_cast<unsigned>(button));
    Rest();
}

void Hands::Drag(const wxPoint& from, const wxPoint& to, int button) {
    Move(from);
    Push(button);
    // A slow window would see a single jump, which starts no drag. So move slowly, and jiggle at the end.
    constexpr int steps = 8, slowMs = 30;
    Sleep(3 * slowMs);
    for (int step = 1; step <= steps; step++) {
        Move({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
        Sleep(slowMs);
    }
    for (const int tremble : {1, 0, 1, 0}) {
        Move({to.x + tremble, to.y});
        Sleep(slowMs);
    }
    LetGo(button);
}

void Hands::Wheel(const wxPoint& screen, int steps) {
    for (int done = 0; done < std::abs(steps); done++) {
        Click(screen, steps > 0 ? 4 : 5);
    }
}

Desk::KeySpot Hands::KeyNamed(const std::string& name) const {
    static const std::map<std::string, std::string> modifiers = {
        {"Ctrl", "Control_L"}, {"Alt", "Alt_L"}, {"Shift", "Shift_L"}, {"Super", "Super_L"}};
    const auto modifier = modifiers.find(name);
    const Desk::KeySpot key = name.size() == 1
                                  ? m_desk.FindKey(name[0])
                                  : m_desk.FindKey(modifier == modifiers.end() ? name : modifier->second);
    if (key.code == 0) {
        throw std::runtime_error("the keyboard has no key \"" + name + "\"");
    }
    return key;
}

void Hands::Tap(const Desk::KeySpot& key) {
    const Desk::KeySpot shift = KeyNamed("Shift");
    if (key.shift) {
        m_desk.Key(shift.code, true);
    }
    m_desk.Key(key.code, true);
    m_desk.Key(key.code, false);
    if (key.shift) {
        m_desk.Key(shift.code, false);
    }
    Rest();
}

void Hands::Press(const std::string& chord) {
    std::vector<Desk::KeySpot> keys;
    for (std::string part : Parts(chord)) {
        if (part.size() == 1 && !keys.empty()) {
            part[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(part[0])));
        }
        keys.push_back(KeyNamed(part));
    }
    for (size_t held = 0; held + 1 < keys.size(); held++) {
        m_desk.Key(keys[held].code, true);
    }
    Tap(keys.back());
    for (size_t held = keys.size() - 1; held-- > 0;) {
        m_desk.Key(keys[held].code, false);
    }
    Rest();
}

void Hands::Press(const std::string& chord, int times) {
    for (int done = 0; done < times; done++) {
        Press(chord);
    }
}

void Hands::Type(const std::string& text) {
    for (const char character : text) {
        if (character == '\n' || character == '\t') {
            Tap(KeyNamed(character == '\n' ? "Return" : "Tab"));
        } else {
            Tap(KeyNamed(std::string(1, character)));
        }
    }
}

} // namespace testbench
