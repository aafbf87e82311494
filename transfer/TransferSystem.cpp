#include "transfer/TransferSystem.h"

#include "transfer/wxAsyncSerial.h"

namespace {

class Computer : public TransferSystem {
public:
    TransferClock& Clock() override { return SystemClock(); }

    std::unique_ptr<TransferLine> Open(wxWindow* window, const wxString& portName,
                                       unsigned int baudRate) override {
        return std::make_unique<wxAsyncSerial>(window, portName, baudRate);
    }
};

TransferSystem* replacement = nullptr;

} // namespace

TransferSystem& CurrentTransferSystem() {
    static Computer computer;
    return replacement ? *replacement : computer;
}

void UseTransferSystem(TransferSystem* system) {
    replacement = system;
}
