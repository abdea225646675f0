// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// A sound that the caller waits for.
struct SoundRequest {
    std::string name;
    /// The time at which the caller gives up. The worker adds the length of the sound when it has read the file.
    std::chrono::steady_clock::time_point deadline;
};

/// The state that the caller and the worker share. Both own the mailbox: a worker that hangs outlives the caller.
struct SoundMailbox {
    std::mutex mutex;                     ///< guards the other members
    std::condition_variable changed;      ///< notified after each change that the other thread may wait for
    std::optional<SoundRequest> request;  ///< set by the caller, cleared by the worker after the sound
    bool warmUp = false;                  ///< set by the caller, cleared by the worker
    bool stop = false;                    ///< set by the caller
    bool stopped = false;                 ///< set by the worker after it has closed the device
};

/// The function of the worker thread. Carries out the orders in the mailbox until `stop`. Reads the sounds from
/// `folders`. Closes the device after `closeAfter` without an order. Nothing else uses the sound device. Blocks all
/// signals in the worker thread, so that other threads handle them.
void serveSounds(const std::shared_ptr<SoundMailbox>& mailbox, const std::vector<std::filesystem::path>& folders,
                 std::chrono::milliseconds closeAfter) noexcept;

}  // namespace platform
