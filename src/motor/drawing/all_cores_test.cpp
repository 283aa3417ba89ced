#include "motor/drawing/all_cores.h"

#include <gtest/gtest.h>

#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <mutex>
#include <new>
#include <set>

namespace motor {
namespace {

TEST(AllCores, EachRunsOnAThreadOfItsOwnAndNoneIsLeftBehind) {
  for (int round = 0; round < 200; ++round) {
    std::mutex mutex;
    std::set<Qt::HANDLE> threads;
    std::atomic<int> begun{0};
    std::atomic<int> ended{0};
    onAllCores([&] {
      ++begun;
      {
        const std::scoped_lock lock(mutex);
        EXPECT_TRUE(threads.insert(QThread::currentThreadId()).second);
      }
      ++ended;
    });
    EXPECT_EQ(begun, ended);
    EXPECT_TRUE(threads.contains(QThread::currentThreadId()));
    EXPECT_LE(threads.size(), static_cast<std::size_t>(std::max(1, QThread::idealThreadCount())));
  }
}

TEST(AllCores, AFailureOfAnyPartIsPassedOnWhenAllHaveReturned) {
  const Qt::HANDLE here = QThread::currentThreadId();
  for (const bool failsHere : {true, false}) {
    std::atomic<int> begun{0};
    std::atomic<int> ended{0};
    std::atomic<bool> isElsewhere{false};
    const auto takePart = [&] {
      ++begun;
      const bool isHere = QThread::currentThreadId() == here;
      if (!isHere) isElsewhere = true;
      ++ended;
      if (isHere == failsHere) throw std::bad_alloc();
    };
    bool hasFailed = false;
    try {
      onAllCores(takePart);
    } catch (const std::bad_alloc&) {
      hasFailed = true;
    }
    EXPECT_EQ(hasFailed, failsHere || isElsewhere);
    EXPECT_EQ(ended, begun);
  }
}

TEST(AllCores, RunsHereAloneWhereNoOtherIsFree) {
  QThreadPool& pool = *QThreadPool::globalInstance();
  const int usual = pool.maxThreadCount();
  QSemaphore mayEnd;
  pool.setMaxThreadCount(1);
  pool.start([&] { mayEnd.acquire(); });
  int runs = 0;
  onAllCores([&] { ++runs; });
  mayEnd.release();
  pool.waitForDone();
  pool.setMaxThreadCount(usual);
  EXPECT_EQ(runs, 1);
}

TEST(AllCores, APartMayCallForAllCoresItself) {
  std::atomic<int> outer{0};
  std::atomic<int> inner{0};
  onAllCores([&] {
    ++outer;
    onAllCores([&] { ++inner; });
  });
  EXPECT_GE(inner, outer);
}

}  // namespace
}  // namespace motor
