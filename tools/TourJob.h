// One job of the tour: sends a channel file to a radio, then reads the radio back into an empty page.
#pragma once

#include "robot/TempFolder.h"
#include "tools/ChannelList.h"
#include "tools/TourHand.h"

#include <filesystem>
#include <string>

namespace Tour {

/// Properties that differ between jobs.
struct Job {
    const char* model;     ///< model of the radio, also the name of its port
    const char* choice;    ///< entry of the radio in the dialog of target radios
    const char* example;   ///< name of the channel file
    const char* sendTitle; ///< title of the progress window, as is readTitle
    const char* readTitle;
    /// True if the program asks before it sends the file: the file uses operating modes, and the program
    /// doesn't know the radio's modes before it first talks to it.
    bool asksForModes;
    /// Returns the channels of the file as the page shows them after they are read back.
    ChannelList (*readBack)(ChannelList channels);
    const char* radioRule; ///< report text: special rules for comparing radio and file
    const char* pageRule;  ///< report text: special rules for comparing page and file
};

class TourJob {
public:
    /// `radioProgram` is zelk-radio.
    TourJob(TourHand& hand, const Job& job, std::filesystem::path radioProgram,
            std::filesystem::path examples);

    /// Plays the job on the current page and a new one. Throws std::runtime_error when a step fails.
    void Play();

    /// Adds a page for the job's radio and makes it the current page.
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

    /// Pictures a transfer's window and answers the status box at its end.
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
