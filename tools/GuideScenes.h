// Scenes that the user guide's pictures show.
#pragma once

#include "tools/GuideCamera.h"
#include "tools/TourHand.h"

#include <filesystem>

namespace Guide {

/// Files and folders that the scenes need.
struct Places {
    std::filesystem::path radio;    ///< the program zelk-radio
    std::filesystem::path examples; ///< folder of example channel files
    std::filesystem::path scratch;  ///< folder for temporary files
};

/// A technician's first transfer: target, port, channels, check, send, read back.
void TakeFirstTransfer(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Pages of each kind, special cells, and commands on rows and columns.
void TakePages(Tour::TourHand& hand, Camera& camera, const Places& places);

/// The import's file dialog and its report.
void TakeImport(Tour::TourHand& hand, Camera& camera, const Places& places);

/// The print preview of a page.
void TakePrinting(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Message boxes of a failing transfer, and the question about the operating modes of a digital radio.
void TakeTransferBoxes(Tour::TourHand& hand, Camera& camera, const Places& places);

/// Runs a command of the main window as its menu does, without waiting for its end.
void RunCommand(int id);

/// Opens a channel file on the current page without a dialog.
void OpenOnPage(testbench::Robot& robot, const std::filesystem::path& file);

/// Resizes the main window; sizes are in pixels.
void ResizeWindow(testbench::Robot& robot, int width, int height);

/// Chooses the port of a simulated radio in the port dialog. Pictures the dialog if `picture` isn't empty.
void ChoosePort(Tour::TourHand& hand, Camera& camera, const std::string& radio, const std::string& picture);

} // namespace Guide
