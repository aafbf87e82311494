// Saving while the first, second, third ... call that changes a file fails, until none does.
#include "tests/files/AsAnyUser.h"
#include "tests/files/FailingCalls.h"
#include "tests/files/OpenSaveCommandsTest.h"

#include <sys/stat.h>

#include <cerrno>

namespace {

class SaveFaults : public OpenSaveCommands {
protected:
    void SetUp() override {
        OpenSaveCommands::SetUp();
        NamePage("a");
        FillRowsFromDefault({1, 2, 3, 4, 5, 6, 7, 8});
        Choose(IdSave);
        m_former = ReadFromFolder("a.zelk");
        ASSERT_EQ(chmod((m_folder / "a.zelk").c_str(), 0666), 0);
        for (const int row : {1, 2, 3})
            SetCell(row, DESC, "NEW");
        Choose(IdSave);
        m_fresh = Masked(ReadFromFolder("a.zelk"));
        ASSERT_NE(m_fresh, Masked(m_former));
    }

    /// Saves over the former file by menu while that call fails.
    bool SaveWithFailure(int which, int error) {
        testbench::WriteFile(m_folder / "a.zelk", m_former);
        const FailingCalls calls(m_folder.Path(), which, error);
        Choose(IdSave);
        return calls.HasFailed();
    }

    /// Expects the complete former or new file, and the status bar to report which.
    void ExpectWholeFileAsTold() {
        EXPECT_EQ(Entries(), std::vector<std::string>{"a.zelk"});
        const std::string bytes = ReadFromFolder("a.zelk");
        if (Status(0).starts_with("NOT SAVED: "))
            EXPECT_EQ(bytes, m_former) << Status(0);
        else {
            EXPECT_EQ(Status(0), "Saved a.zelk");
            EXPECT_EQ(Masked(bytes), m_fresh);
        }
    }

    /// Saves until no call fails any more. Returns the number of calls that a save makes.
    int SaveWithEachFailure(int error) {
        int which = 1;
        while (SaveWithFailure(which, error)) {
            SCOPED_TRACE("call " + std::to_string(which) + ", error " + std::to_string(error));
            ExpectWholeFileAsTold();
            m_refused += Status(0).starts_with("NOT SAVED: ");
            if (++which > 500) {
                ADD_FAILURE() << "there is always one more call";
                break;
            }
        }
        EXPECT_EQ(Status(0), "Saved a.zelk") << "without a failure";
        EXPECT_EQ(Masked(ReadFromFolder("a.zelk")), m_fresh);
        return which - 1;
    }

    std::string m_former, m_fresh;
    int m_refused = 0; ///< saves that were reported as failed
};

} // namespace

TEST_F(SaveFaults, LeaveTheFormerFileOrTheNewOneWholeWhicheverCallFails) {
    for (const int error : {ENOSPC, EIO}) {
        m_refused = 0;
        const int calls = SaveWithEachFailure(error);
        EXPECT_GT(calls, 8) << "opening, several writes, flushing, closing, permissions, renaming";
        EXPECT_EQ(m_refused, calls - 1) << "only permissions may be lost in silence";
    }
    m_refused = 0;
    EXPECT_GT(SaveWithEachFailure(EPERM), 8);
    EXPECT_EQ(m_refused, 0) << "in a folder without write permission the file is overwritten";
}

TEST_F(SaveFaults, OfAFileThatIsOverwrittenInItsPlaceAreUndone) {
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 0555), 0);
    {
        const AsAnyUser user;
        const int calls = SaveWithEachFailure(ENOSPC);
        EXPECT_GT(calls, 5) << "opening, several writes, flushing, closing";
        EXPECT_EQ(m_refused, calls - 1) << "only closing may fail in silence: all has been flushed by then";
    }
    ASSERT_EQ(chmod(m_folder.Path().c_str(), 0755), 0);
}
