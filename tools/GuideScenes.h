// What is to be seen in the user guide's pictures.
#pragma once

#include "tools/GuideCamera.h"
#include "tools/TourHand.h"

#include <filesystem>

namespace Guide {

/// Where things are that the scenes need.
struct Places {
    std::filesystem::path radio;    ///< the program zelk-radio
    std::filesystem::path examples; ///< folder of example channel files
    std::filesystem::path scratch;  ///< folder for files that go away
};

/// A technician's first transfer: target, port, channels, check, send, read back.
void TakeFirstTransfer(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Pages of each kind, the cells that are special, and the commands on rows and columns.
void TakePages(Tour::TourHand& hand, Camera& camera, const Places& places);

/// The import's file dialog and its report.
void TakeImport(Tour::TourHand& hand, Camera& camera, const Places& places);

/// The preview of a page on paper.
void TakePrinting(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Boxes of a transfer that fails, and the question of a digital radio.
void TakeTransferBoxes(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Runs a command of the main window as its menu does, without waiting for its end.
void RunCommand(int id);

/// Opens a channel file on the current page; no dialog.
void OpenOnPage(testbench::Robot& robot, const std::filesystem::path& file);

/// Gives the main window another size, in pixels.
void ResizeWindow(testbench::Robot& robot, int width, int height);

/// Chooses the port of a simulated radio in the port dialog and pictures it, if `picture` isn't empty.
void ChoosePort(Tour::TourHand& hand, Camera& camera, const std::string& radio, const std::string& picture);

} // namespace Guide
