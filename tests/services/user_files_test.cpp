#include "services/user_files.h"

#include <gtest/gtest.h>

#include "shell/program.h"
#include "support/headless_host.h"
#include "support/scripted_random.h"

namespace onze {

namespace {

// A folder in memory.
class MemoryFolder final : public OwnFiles {
  public:
    explicit MemoryFolder(std::string place) : place_(std::move(place)) {}

    std::optional<std::vector<std::byte>> Read(std::string_view name) override {
        return readable ? host.Read(name) : std::nullopt;
    }
    bool Replace(std::string_view name, std::span<const std::byte> bytes) override {
        return writable && host.Replace(name, bytes);
    }
    std::string PlaceOf(std::string_view name) const override { return place_ + "/" + std::string(name); }
    bool Has(std::string_view name) const override { return host.files.contains(std::string(name)); }
    bool Remove(std::string_view name) override {
        return writable && host.files.erase(std::string(name)) == 1;
    }

    NullHost host;
    bool readable = true;
    bool writable = true;

  private:
    std::string place_;
};

// The program, run again and again between two folders.
class UserFilesTest : public testing::Test {
  protected:
    UserFilesTest() { own.host.files.clear(); }

    // One consultation of the reminders from start to "SORTIE", or the report that ends it sooner.
    std::string ConsultReminders() {
        HeadlessHost system;
        ScriptedRandom random;
        UserFiles files(datas, own, "18");
        Host host = system;
        Program program(Host{host.text_measure, host.clock, files, host.pictures, host.sound_player,
                             host.desktop, host.calendar},
                        random);
        const Reaction started = program.Take(event::Started());
        if (started.state != Reaction::State::kRuns) return started.failure;
        program.screens().depart.Label2.on_click();
        program.screens().leçon.retour.on_click();
        const Pixel quit{622, 468};
        program.Take(event::PointerPressed{.at = quit});
        return program.Take(event::PointerReleased{quit}).failure;
    }
    static int Consulted(const MemoryFolder& folder) { return folder.host.files.at("18").at(16); }

    MemoryFolder datas{"datas"};
    MemoryFolder own{"chez moi"};
};

TEST_F(UserFilesTest, CountsStayBesideTheProgramWhereTheyCanBeWritten) {
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(Consulted(datas), 2);
    EXPECT_TRUE(own.host.files.empty());
}

TEST_F(UserFilesTest, CountsGoToTheUserAndComeBackWithoutLoss) {
    datas.writable = false;
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(Consulted(datas), 0);
    EXPECT_EQ(Consulted(own), 2);
    own.host.files["11"] = "no picture of the program's";
    datas.writable = true;
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(Consulted(datas), 3);
    EXPECT_FALSE(own.Has("18"));
    datas.writable = false;
    EXPECT_EQ(ConsultReminders(), "");
    EXPECT_EQ(Consulted(own), 4);
}

TEST_F(UserFilesTest, ACopyThatCannotBeTakenAwayIsKeptUpToDate) {
    own.host.files["18"] = datas.host.files["18"];
    own.host.files["18"][16] = 7;
    own.writable = false;
    EXPECT_EQ(ConsultReminders(), "Enregistrement impossible : « chez moi/18 ».");
    EXPECT_EQ(Consulted(own), 7);
}

TEST_F(UserFilesTest, ReportsNameTheFileConcerned) {
    datas.writable = own.writable = false;
    EXPECT_EQ(ConsultReminders(), "Enregistrement impossible : « chez moi/18 ».");
    datas.host.files.erase("18");
    EXPECT_EQ(ConsultReminders(), "Fichier des compteurs introuvable ou illisible : « datas/18 ».");
    own.host.files["18"] = "\2";
    own.readable = false;
    EXPECT_EQ(ConsultReminders(), "Fichier des compteurs introuvable ou illisible : « chez moi/18 ».");
}

}  // namespace

}  // namespace onze
