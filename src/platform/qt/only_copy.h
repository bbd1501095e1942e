#pragma once

#include <QSocketNotifier>
#include <memory>
#include <string>

#include "platform/data_files.h"
#include "shell/other_copy.h"

namespace onze {

// One copy of the program at a time for each data folder. The first is known by an abstract socket, which
// ends with its process in whatever way, and leaves no file behind.
class OnlyCopy {
  public:
    explicit OnlyCopy(const DataFolders& folders);

    // Makes this the first copy, or asks the one there is to show itself.
    OtherCopy Start();
    // Shows the windows of this copy whenever another one asks. Needs a QGuiApplication.
    void ShowWhenAsked();

  private:
    bool Listen();
    char Ask() const;
    void Answer() const;

    const std::string name_;
    int socket_ = -1;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace onze
