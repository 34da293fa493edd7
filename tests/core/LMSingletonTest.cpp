// SPDX-License-Identifier: MIT
#include "LMSingleton.h"

#include "LMSingleton_p.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace Lumeran;

namespace {

// What the instances below did, in order.
std::vector<std::string>& Events() {
    static std::vector<std::string> events;
    return events;
}

int g_made = 0;

struct First {
    First() { ++g_made; }
    ~First() { Events().push_back("first gone"); }
};

struct Second {
    ~Second() { Events().push_back("second gone"); }
};

struct MadeWhileGoing {
    ~MadeWhileGoing() { Events().push_back("made while going gone"); }
};

struct Settled {
    bool settled = false;
};

constinit LMSingleton<First> s_first{[] { return std::make_shared<First>(); }};
constinit LMSingleton<Second> s_second{[] { return std::make_shared<Second>(); }};
constinit LMSingleton<MadeWhileGoing> s_madeWhileGoing{
    [] { return std::make_shared<MadeWhileGoing>(); }};

// Goes by making another singleton's instance, as a window whose destructor
// reached a shared object would.
struct Reaching {
    ~Reaching() {
        s_madeWhileGoing.Instance();
        Events().push_back("reaching gone");
    }
};
constinit LMSingleton<Reaching> s_reaching{[] { return std::make_shared<Reaching>(); }};

constinit LMSingleton<Settled> s_settled{[] { return std::make_shared<Settled>(); },
                                         [](Settled& instance) {
                                             instance.settled = true;
                                             Events().push_back("settled");
                                         }};

struct Kept {};
using KeptSingleton = LMSingleton<Kept>;
constinit KeptSingleton s_kept{[] { return std::make_shared<Kept>(); }, nullptr,
                               KeptSingleton::OnReset::Keep};

class LMSingletonTest : public ::testing::Test {
protected:
    void SetUp() override {
        LMSingletons::ResetForTesting();
        Events().clear();
        g_made = 0;
    }
    void TearDown() override { LMSingletons::ResetForTesting(); }
};

} // namespace

TEST_F(LMSingletonTest, TheInstanceIsMadeOnFirstUseAndKept) {
    EXPECT_EQ(g_made, 0);
    const std::shared_ptr<First> first = s_first.Instance();
    ASSERT_TRUE(first);
    EXPECT_EQ(s_first.Instance(), first);
    EXPECT_EQ(g_made, 1);
    EXPECT_TRUE(Events().empty());
}

TEST_F(LMSingletonTest, ResetDropsEveryInstanceNewestFirst) {
    s_first.Instance();
    s_second.Instance();
    LMSingletons::ResetForTesting();
    EXPECT_EQ(Events(), (std::vector<std::string>{"second gone", "first gone"}));
}

TEST_F(LMSingletonTest, TheNextUseAfterAResetMakesANewInstance) {
    std::weak_ptr<First> old = s_first.Instance();
    LMSingletons::ResetForTesting();
    EXPECT_TRUE(old.expired());
    EXPECT_TRUE(s_first.Instance());
    EXPECT_EQ(g_made, 2);
}

TEST_F(LMSingletonTest, AHandleKeptByACallerOutlivesTheReset) {
    const std::shared_ptr<Second> kept = s_second.Instance();
    LMSingletons::ResetForTesting();
    EXPECT_TRUE(Events().empty());
    EXPECT_NE(s_second.Instance(), kept);
}

TEST_F(LMSingletonTest, SettleRunsJustBeforeTheInstanceIsDropped) {
    std::weak_ptr<Settled> instance = s_settled.Instance();
    s_second.Instance();
    LMSingletons::ResetForTesting();
    EXPECT_EQ(Events(), (std::vector<std::string>{"second gone", "settled"}));
    EXPECT_TRUE(instance.expired());
}

TEST_F(LMSingletonTest, AnInstanceMadeDuringTheResetIsDroppedToo) {
    s_reaching.Instance();
    LMSingletons::ResetForTesting();
    EXPECT_EQ(Events(), (std::vector<std::string>{"reaching gone", "made while going gone"}));
}

TEST_F(LMSingletonTest, AResetWithNoInstanceDoesNothing) {
    LMSingletons::ResetForTesting();
    LMSingletons::ResetForTesting();
    EXPECT_TRUE(Events().empty());
    EXPECT_EQ(g_made, 0);
}

TEST_F(LMSingletonTest, AnInstanceKeptOnResetOutlivesTheReset) {
    const Kept* before = s_kept.Instance().get();
    LMSingletons::ResetForTesting();
    EXPECT_EQ(s_kept.Instance().get(), before);
}

TEST_F(LMSingletonTest, ExistingNeverMakesTheInstance) {
    EXPECT_FALSE(s_first.Existing());
    EXPECT_EQ(g_made, 0);
    const auto first = s_first.Instance();
    EXPECT_EQ(s_first.Existing(), first);
}
