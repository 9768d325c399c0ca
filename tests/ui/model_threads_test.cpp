#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "ui/uninstaller_model.hpp"

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

namespace kelmar {
namespace {

using Model = UninstallerModel;

/// A thread for each job; the test's own thread is the main one.
class ThreadDispatcher : public Dispatcher {
public:
    void toMain(Job job) override {
        const std::scoped_lock lock(mutex_);
        main_.push_back(std::move(job));
        posted_.notify_one();
    }

    void userInitiated(Job job) override { start(std::move(job)); }

    void utility(Job job) override { start(std::move(job)); }

    /// Does what is posted, in order, until `done`.
    void work(const std::function<bool()>& done) {
        while (!done()) {
            std::unique_lock lock(mutex_);
            posted_.wait(lock, [this] { return !main_.empty(); });
            const Job job = std::move(main_.front());
            main_.pop_front();
            lock.unlock();
            job();
        }
    }

    /// Waits for all jobs, and does what they posted.
    void finish() {
        while (true) {
            std::vector<std::thread> threads;
            std::deque<Job> main;
            {
                const std::scoped_lock lock(mutex_);
                threads.swap(threads_);
                main.swap(main_);
            }
            if (threads.empty() && main.empty()) {
                return;
            }
            for (const Job& job : main) {
                job();
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
        }
    }

private:
    void start(Job job) {
        const std::scoped_lock lock(mutex_);
        threads_.emplace_back(std::move(job));
    }

    std::mutex mutex_;
    std::condition_variable posted_;
    std::deque<Job> main_;
    std::vector<std::thread> threads_;
};

class ModelThreads : public testing::Test {
public:
    ModelThreads(const ModelThreads&) = delete;
    ModelThreads& operator=(const ModelThreads&) = delete;

    ~ModelThreads() override { dispatcher->finish(); }

protected:
    ModelThreads() = default;

    /// A model of a new small tree in the folder `name`.
    void begin(const std::string& name, Model::Sources sources = {}) {
        tree = std::make_unique<test::MacTree>(folder / name);
        tree->app(Scope::me, "4.3").services(Scope::me).agents(Scope::me).settings();
        tree->dataFolder(Scope::me, "Store", 2'000).dataFolder(Scope::me, "Logs", 10);
        tree->dataFolder(Scope::allUsers, "CDN", 3'000).services(Scope::allUsers);
        model = std::make_shared<Model>(tree->paths(), dispatcher, std::move(sources));
        model->observe([this] {
            EXPECT_EQ(std::this_thread::get_id(), main);
            shown.push_back(model->published());
        });
    }

    [[nodiscard]] const Model::Published& published() const { return model->published(); }

    void workUntilReady() {
        dispatcher->work(
            [this] { return std::holds_alternative<Model::Ready>(published().phase); });
    }

    void workUntilTheRunIsOver() {
        dispatcher->work([this] { return !model->isWorking(); });
    }

    const std::thread::id main = std::this_thread::get_id();
    test::TemporaryFolder folder;
    std::unique_ptr<test::MacTree> tree;
    std::shared_ptr<ThreadDispatcher> dispatcher = std::make_shared<ThreadDispatcher>();
    std::shared_ptr<Model> model;
    std::vector<Model::Published> shown; ///< copies, as a window would hold them
};

TEST_F(ModelThreads, AScanTheMeasuringAndAWholeRunMeetOnTheMainThread) {
    for (int round = 0; round < 10; ++round) {
        begin(std::to_string(round));
        model->scan();
        workUntilReady();
        const std::vector<DataFolder> folders = published().inventory.dataFolders();
        ASSERT_EQ(folders.size(), 3U);
        dispatcher->work([this] { return published().sizes.size() == 3; });
        EXPECT_GE(model->bytes(folders), 5'010);
        model->uninstall();
        workUntilTheRunIsOver();
        EXPECT_EQ(published().phase, Model::Phase(Model::Finished{}));
        EXPECT_EQ(published().stages.size(), 4U);
        for (const Model::StageRow& row : published().stages) {
            EXPECT_EQ(row.state, Model::StageRow::State::done) << row.title;
        }
        EXPECT_TRUE(Scanner::scan(tree->paths()).isEmpty());
    }
}

TEST_F(ModelThreads, ARunBeginsWhileItsDataIsStillMeasured) {
    for (int round = 0; round < 10; ++round) {
        begin(std::to_string(round));
        model->scan();
        workUntilReady();
        model->uninstall();
        workUntilTheRunIsOver();
        EXPECT_EQ(published().phase, Model::Phase(Model::Finished{}));
        dispatcher->finish();
        EXPECT_NE(model->bytes(published().deletedData), std::nullopt);
    }
}

TEST_F(ModelThreads, ManyScansAtOnceEndInOneResult) {
    constexpr std::size_t count = 12;
    begin("t");
    for (std::size_t round = 0; round < count; ++round) {
        model->scan();
    }
    dispatcher->finish();
    EXPECT_EQ(published().inventory, Scanner::scan(tree->paths()));
    EXPECT_TRUE(std::holds_alternative<Model::Ready>(published().phase));
    EXPECT_EQ(published().selectedData.size(), 3U);
    EXPECT_EQ(published().sizes.size(), 3U);
    EXPECT_GE(shown.size(), 2 * count);
}

TEST_F(ModelThreads, ARefusedRunScansAgain) {
    Model::Sources sources;
    sources.administrator = [](const KelmarPaths&) {
        return std::make_shared<test::ScriptedRunner>([](const std::string& statusFile) {
            // The line comes by the thread that follows the file.
            test::writes("LOG asking\n")(statusFile);
            throw AdministratorError::cancelled();
        });
    };
    begin("t", sources);
    model->scan();
    workUntilReady();
    for (int round = 0; round < 10; ++round) {
        model->uninstall();
        workUntilTheRunIsOver();
        workUntilReady();
        EXPECT_TRUE(published().notice.has_value());
        EXPECT_EQ(published().log.text(),
                  "asking\nNo administrator's password was given; nothing was removed.");
    }
    EXPECT_EQ(published().inventory, Scanner::scan(tree->paths()));
}

} // namespace
} // namespace kelmar
