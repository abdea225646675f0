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
    /// When the caller gives up. The worker adds the length of the sound once it knows it.
    std::chrono::steady_clock::time_point deadline;
};

/// The shared state of caller and worker. Both own it, because a worker that hangs outlives the caller.
struct SoundMailbox {
    std::mutex mutex;                     ///< guards the other members
    std::condition_variable changed;      ///< notified after each change that the other side may wait for
    std::optional<SoundRequest> request;  ///< set by the caller, cleared by the worker when done
    bool warmUp = false;                  ///< set by the caller, cleared by the worker
    bool stop = false;                    ///< set by the caller
    bool stopped = false;                 ///< set by the worker once the device is closed
};

/// The function of the worker thread. Carries out the orders in the mailbox until `stop`, with sounds from `folders`,
/// and closes the device after `closeAfter` without an order. Nothing else uses the sound device. Blocks all signals on
/// its thread, so that other threads handle them.
void serveSounds(const std::shared_ptr<SoundMailbox>& mailbox, const std::vector<std::filesystem::path>& folders,
                 std::chrono::milliseconds closeAfter) noexcept;

}  // namespace platform
