// One job of the tour: a channel file into a radio, and the radio back into an empty page.
#pragma once

#include "robot/TempFolder.h"
#include "tools/ChannelList.h"
#include "tools/TourHand.h"

#include <filesystem>
#include <string>

namespace Tour {

/// What makes one job different from another.
struct Job {
    const char* model;     ///< of the radio; its port has the same name
    const char* choice;    ///< the radio in the dialog of target radios
    const char* example;   ///< name of the channel file
    const char* sendTitle; ///< titles of the transfers' windows
    const char* readTitle;
    /// The file uses modes that the program doesn't know of the radio before it first talks to it: it asks.
    bool asksForModes;
    /// The channels of the file as the page shows them when they come back.
    ChannelList (*readBack)(ChannelList channels);
    const char* radioRule; ///< how radio and file are compared, where not as they stand
    const char* pageRule;  ///< the same of the page read back
};

class TourJob {
public:
    /// `radioProgram` is zelk-radio.
    TourJob(TourHand& hand, const Job& job, std::filesystem::path radioProgram,
            std::filesystem::path examples);

    /// Plays the job on the current page and a new one. Throws std::runtime_error when a step fails.
    void Play();

    /// Adds a page for the job's radio, which becomes the current one.
    void AddPage();

private:
    void OpenExample();
    void PickPort();
    std::string PortText();
    void SelectAll();
    void Send();
    void CompareRadio();
    void ReadBack();
    void ComparePage();

    /// Pictures a transfer's window, and answers the status box at its end.
    void Transfer(const std::string& step, const std::string& title, const std::string& caption,
                  bool asksForModes);
    void Compare(const ChannelList& wanted, const ChannelList& found, const std::string& where);
    std::filesystem::path Memories() const { return m_folder / "memories.txt"; }

    TourHand& m_hand;
    testbench::Robot& m_robot;
    const Job& m_job;
    std::filesystem::path m_radioProgram, m_examples;
    testbench::TempFolder m_folder{"zelk-tour"};
    ChannelList m_wanted;
};

} // namespace Tour
