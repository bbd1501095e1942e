#pragma once

#include "services/data_files.h"

namespace onze {

// A folder of files of the user's own. It is made when the first of them is written.
class OwnFiles : public DataFiles {
  public:
    // Whether there is anything of that name, readable or not.
    virtual bool Has(std::string_view name) const = 0;
    // Takes a file away, and tells whether it is gone.
    virtual bool Remove(std::string_view name) = 0;
};

// The files of the data folder, one of which the program writes: where that cannot be done there, the user
// gets a copy of his own, which is read from then on. As soon as the data folder takes the file again, that
// copy goes.
class UserFiles final : public DataFiles {
  public:
    UserFiles(DataFiles& datas, OwnFiles& own, std::string_view written)
        : datas_(datas), own_(own), written_(written) {}

    std::optional<std::vector<std::byte>> Read(std::string_view name) override;
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override;
    std::string PlaceOf(std::string_view name) const override;

  private:
    bool IsOwn(std::string_view name) const { return name == written_ && own_.Has(name); }

    DataFiles& datas_;
    OwnFiles& own_;
    const std::string_view written_;
    bool failed_ = false;  // to write, last of all in the user's folder
};

}  // namespace onze
