// The settings on a disk that fails.
#include "stores/SettingsFile.h"

#include "formats/Settings.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::FaultyFiles;
using test::TestFolder;

class SettingsFileTest : public testing::Test {
 protected:
  void open(FileSystem& files) {
    SettingsFile settings(files);
    settings.open(folder.pathOf("data.Kcu"), SettingsFile::IfMissing::BeginFresh);
  }
  std::int32_t storedSound() {
    SettingsFile settings(systemFiles());
    settings.open(folder.pathOf("data.Kcu"), SettingsFile::IfMissing::BeginFresh);
    return settings.read(setting::SoundOn);
  }

  TestFolder folder;
};

TEST_F(SettingsFileTest, ADiskThatFailsWhileTheyAreMadeTurnsNoSoundOff) {
  FaultyFiles counting;
  counting.looksCount = true;
  open(counting);
  ASSERT_GT(counting.calls, 3);
  for (int call = 1; call <= counting.calls; ++call) {
    folder.remove("data.Kcu");
    FaultyFiles files;
    files.looksCount = true;
    files.failFrom = call;
    files.failTo = 1 << 30;
    open(files);
    EXPECT_TRUE(!folder.has("data.Kcu") || folder.read("data.Kcu").size() == 4 * setting::Count)
        << "call " << call;
    EXPECT_EQ(storedSound(), 1) << "call " << call;
  }
}

TEST_F(SettingsFileTest, AnEmptyFileIsBegunAnew) {
  folder.write("data.Kcu", "");
  EXPECT_EQ(storedSound(), 1);
  EXPECT_EQ(folder.read("data.Kcu").size(), 4 * setting::Count);
}

TEST_F(SettingsFileTest, OneThatIsTakenAwayIsMadeAgainWhole) {
  SettingsFile settings(systemFiles());
  settings.open(folder.pathOf("data.Kcu"), SettingsFile::IfMissing::BeginFresh);
  folder.remove("data.Kcu");
  settings.write(1, 77);
  EXPECT_EQ(storedSound(), 1);
  EXPECT_EQ(folder.read("data.Kcu").size(), 4 * setting::Count);
}

} // namespace
} // namespace talvora
