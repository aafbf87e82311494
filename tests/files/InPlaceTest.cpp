#include "files/InPlace.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// A file in memory. A number of its operations fail, starting at one of them. A failing write has written
/// half.
class FailingBytes : public FileBytes {
public:
    FailingBytes(std::string bytes, int firstFailure, int failures)
        : m_bytes(std::move(bytes)), m_size(m_bytes.size()), m_first(firstFailure), m_failures(failures) {}

    size_t Size() const override { return m_size; }

    std::error_code Read(size_t count, std::string& bytes) override {
        if (Fails())
            return Failure();
        bytes = m_bytes.substr(0, count);
        return {};
    }

    std::error_code Write(size_t offset, std::string_view bytes, size_t& done) override {
        if (bytes.empty()) {
            done = 0;
            return {};
        }
        const bool fails = Fails();
        done = fails ? bytes.size() / 2 : bytes.size();
        if (m_bytes.size() < offset + done)
            m_bytes.resize(offset + done);
        m_bytes.replace(offset, done, bytes.substr(0, done));
        return fails ? Failure() : std::error_code();
    }

    std::error_code Flush() override { return Fails() ? Failure() : std::error_code(); }

    std::error_code Resize(size_t size) override {
        if (Fails())
            return Failure();
        m_bytes.resize(size);
        return {};
    }

    const std::string& Bytes() const { return m_bytes; }
    bool HasFailed() const { return m_operation > m_first; }

private:
    static std::error_code Failure() { return std::make_error_code(std::errc::no_space_on_device); }

    bool Fails() {
        const int operation = m_operation++;
        return operation >= m_first && operation < m_first + m_failures;
    }

    std::string m_bytes;
    size_t m_size;
    int m_first, m_failures;
    int m_operation = 0;
};

/// Overwrites former with fresh while the first, second, third ... operation fails, until none does.
void ExpectWholeOrTold(const std::string& former, const std::string& fresh, int failures, bool& sawDamage) {
    for (int first = 0;; ++first) {
        SCOPED_TRACE("operation " + std::to_string(first) + " of " + std::to_string(former.size()) + " to " +
                     std::to_string(fresh.size()) + " bytes");
        ASSERT_LT(first, 20);
        FailingBytes file(former, first, failures);
        const WriteResult result = OverwriteBytes(file, fresh);
        if (!file.HasFailed()) {
            EXPECT_FALSE(result.error);
            EXPECT_FALSE(result.damaged);
            EXPECT_EQ(file.Bytes(), fresh);
            return;
        }
        EXPECT_TRUE(result.error == std::errc::no_space_on_device);
        if (result.damaged)
            sawDamage = true;
        else
            EXPECT_EQ(file.Bytes(), former);
    }
}

const std::pair<std::string, std::string> Contents[] = {
    {"", "new"}, {"former", ""}, {"former", "new"}, {"old", "longer"}, {"same", "size"}, {"", ""}};

} // namespace

TEST(InPlace, LeavesTheFormerBytesWhicheverOperationFails) {
    bool sawDamage = false;
    for (const auto& [former, fresh] : Contents)
        ExpectWholeOrTold(former, fresh, 1, sawDamage);
    EXPECT_FALSE(sawDamage);
}

TEST(InPlace, TellsWhenTheFormerBytesCouldNotBePutBack) {
    bool sawDamage = false;
    for (const auto& [former, fresh] : Contents)
        ExpectWholeOrTold(former, fresh, 100, sawDamage);
    EXPECT_TRUE(sawDamage);
}
