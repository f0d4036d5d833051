// A second start, which calls the first.
#include "desktop/RunningProgram.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <string>

namespace talvora {
namespace {

class SecondStart : public testing::Test {
 protected:
  /// The answer that a second start gets while this one lets events run.
  [[nodiscard]] static bool call(const std::string& learner) {
    auto call = std::async(std::launch::async, [&] { return raiseRunningProgram(learner); });
    while (call.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
      QCoreApplication::processEvents();
    return call.get();
  }

  QTemporaryDir folder_;
  std::string learner_ = folder_.path().toStdString();
  int raised_ = 0;
};

TEST_F(SecondStart, IsNotAnsweredWhereNobodyListens) {
  EXPECT_FALSE(call(learner_));
}

TEST_F(SecondStart, RaisesTheWindowEachTime) {
  const RaiseCalls calls(learner_, [this] { ++raised_; });
  EXPECT_TRUE(call(learner_));
  EXPECT_TRUE(call(learner_));
  EXPECT_EQ(raised_, 2);
}

TEST_F(SecondStart, OfAnotherFolderIsNotAnswered) {
  const RaiseCalls calls(learner_, [this] { ++raised_; });
  const QTemporaryDir other;
  EXPECT_FALSE(call(other.path().toStdString()));
  EXPECT_EQ(raised_, 0);
}

TEST_F(SecondStart, IsAnsweredByWhoCameLast) {
  // As after a program that was killed, whose socket lies there still.
  auto dead = std::make_unique<RaiseCalls>(learner_, [] {});
  const RaiseCalls calls(learner_, [this] { ++raised_; });
  EXPECT_TRUE(call(learner_));
  EXPECT_EQ(raised_, 1);
}

TEST_F(SecondStart, IsNotAnsweredOnceThatHasEnded) {
  {
    const RaiseCalls calls(learner_, [this] { ++raised_; });
  }
  EXPECT_FALSE(call(learner_));
}

} // namespace
} // namespace talvora
