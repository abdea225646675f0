// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/sound.h"

#include <atomic>
#include <cstdlib>
#include <exception>
#include <thread>
#include <utility>

#include <unistd.h>

#include "platform/sound/worker.h"

namespace platform {
namespace {

using Clock = std::chrono::steady_clock;

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the exit handler reads the number
std::atomic<int> workersInUse = 0;

/// A worker that hangs in the sound device never releases its locks. With glibc 2.41, exit() waits for these locks, so
/// the program would never end. _exit() does not wait.
void leaveWithoutWorkers(int exitStatus, void*) {
    if (workersInUse > 0) {
        _exit(exitStatus);
    }
}

/// Passes the name of each sound to a worker thread. Waits for the worker at most as long as `Sound::play` allows.
class WorkerSound final : public Sound {
  public:
    WorkerSound(std::vector<std::filesystem::path> soundFolders, SoundTiming soundTiming)
        : folders(std::move(soundFolders)), timing(soundTiming) {}
    WorkerSound(const WorkerSound&) = delete;
    WorkerSound(WorkerSound&&) = delete;
    WorkerSound& operator=(const WorkerSound&) = delete;
    WorkerSound& operator=(WorkerSound&&) = delete;
    ~WorkerSound() override;

    void warmUp() override;
    void play(const std::string& name) override;

  private:
    void startWorker();

    std::vector<std::filesystem::path> folders;
    SoundTiming timing;
    std::shared_ptr<SoundMailbox> mailbox = std::make_shared<SoundMailbox>();
    std::thread worker;
};

WorkerSound::~WorkerSound() {
    if (!worker.joinable()) {
        return;
    }
    std::unique_lock lock(mailbox->mutex);
    mailbox->stop = true;
    mailbox->changed.notify_all();
    const bool hangs = mailbox->request.has_value();
    if (!hangs && mailbox->changed.wait_for(lock, timing.grace, [this] { return mailbox->stopped; })) {
        lock.unlock();
        worker.join();
        --workersInUse;
    } else {
        worker.detach();
    }
}

void WorkerSound::warmUp() {
    try {
        startWorker();
        const std::lock_guard lock(mailbox->mutex);
        mailbox->warmUp = true;
        mailbox->changed.notify_all();
    } catch (const std::exception&) {
        // Without a thread there is no sound.
    }
}

void WorkerSound::play(const std::string& name) {
    try {
        startWorker();
        std::unique_lock lock(mailbox->mutex);
        auto& request = mailbox->request;
        if (request) {
            return;  // The worker is still busy with an earlier sound.
        }
        request = SoundRequest{name, Clock::now() + timing.grace};
        mailbox->changed.notify_all();
        while (request && Clock::now() < request->deadline) {
            const auto deadline = request->deadline;  // a copy: the worker may change the original
            mailbox->changed.wait_until(lock, deadline);
        }
    } catch (const std::exception&) {
        // Without a thread or memory there is no sound.
    }
}

void WorkerSound::startWorker() {
    if (!worker.joinable()) {
        worker = std::thread(serveSounds, mailbox, folders, timing.closeAfter);
        ++workersInUse;
        [[maybe_unused]] static const int registered = on_exit(leaveWithoutWorkers, nullptr);
    }
}

}  // namespace

std::unique_ptr<Sound> makeSound(std::vector<std::filesystem::path> folders, SoundTiming timing) {
    return std::make_unique<WorkerSound>(std::move(folders), timing);
}

}  // namespace platform
