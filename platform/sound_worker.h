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
    /// When the caller gives up. The worker moves it on by the sound's length once it knows that.
    std::chrono::steady_clock::time_point deadline;
};

/// What the caller and the worker tell each other. Both own it: a worker that hangs outlives the caller.
struct SoundMailbox {
    std::mutex mutex;                     ///< guards all that follows
    std::condition_variable changed;      ///< notified of what the other side may wait for
    std::optional<SoundRequest> request;  ///< set by the caller, cleared by the worker when done
    bool warmUp = false;                  ///< set by the caller, cleared by the worker
    bool stop = false;                    ///< set by the caller
    bool stopped = false;                 ///< set by the worker, which has closed the device and ends
};

/// The worker's whole life: carries out the orders in the mailbox until `stop`, with sounds from `folders`,
/// and closes the device after `closeAfter` without an order. Nothing else uses the sound device. Blocks all
/// signals on its thread, so that they reach the others.
void serveSounds(const std::shared_ptr<SoundMailbox>& mailbox, const std::vector<std::filesystem::path>& folders,
                 std::chrono::milliseconds closeAfter) noexcept;

}  // namespace platform
