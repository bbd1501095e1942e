#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "forms/platform.h"

using PlatformFactory = std::unique_ptr<Platform> (*)();

// What the program relies on, whatever system it runs on. Each platform is put to it by an
//     INSTANTIATE_TEST_SUITE_P(Name, PlatformContract, testing::Values(&MakeThatPlatform));
class PlatformContract : public testing::TestWithParam<PlatformFactory> {
  protected:
    PlatformContract();
    ~PlatformContract() override;

    Platform& platform() { return *platform_; }
    // A file of a temporary folder whose name has blanks and accents.
    std::filesystem::path Place(std::string_view name) const;
    std::filesystem::path Write(std::string_view name, std::string_view bytes) const;
    std::string Read(const std::filesystem::path& file) const;
    int FilesInFolder() const;

  private:
    std::unique_ptr<Platform> platform_;
    std::filesystem::path folder_;
};

// What only a platform on a real system can show; it is instantiated for such a platform as well.
class RealPlatformContract : public PlatformContract {};
