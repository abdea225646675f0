// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/worker.h"

#include <csignal>
#include <exception>
#include <utility>

#include "platform/sound/device.h"
#include "platform/sound/sound_file.h"

namespace platform {
namespace {

enum class Order { play, warmUp, close, stop };

void blockSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

/// Waits for the next order. If a device is open and no order comes within `closeAfter`, returns Order::close.
Order nextOrder(SoundMailbox& mailbox, bool deviceIsOpen, std::chrono::milliseconds closeAfter) {
    std::unique_lock lock(mailbox.mutex);
    const auto isOrdered = [&] { return mailbox.stop || mailbox.request || mailbox.warmUp; };
    if (!deviceIsOpen) {
        mailbox.changed.wait(lock, isOrdered);
    } else if (!mailbox.changed.wait_for(lock, closeAfter, isOrdered)) {
        return Order::close;
    }
    if (mailbox.stop) {
        return Order::stop;
    }
    return std::exchange(mailbox.warmUp, false) ? Order::warmUp : Order::play;
}

Samples load(const std::vector<std::filesystem::path>& folders, const std::string& name) {
    try {
        return decodeWav(readSoundFile(folders, name));
    } catch (const std::exception&) {
        return {};
    }
}

bool isGivenUp(const SoundRequest& request) {
    return request.deadline <= std::chrono::steady_clock::now();
}

/// Adds the length of the sound to the caller's deadline. Returns false if the caller has already given up.
bool extendDeadline(SoundMailbox& mailbox, std::chrono::milliseconds length) {
    const std::lock_guard lock(mailbox.mutex);
    if (isGivenUp(*mailbox.request)) {
        return false;
    }
    mailbox.request->deadline += length;
    mailbox.changed.notify_all();
    return true;
}

bool isStillWanted(SoundMailbox& mailbox) {
    const std::lock_guard lock(mailbox.mutex);
    return !isGivenUp(*mailbox.request);
}

/// Plays the samples if the caller still waits. Returns the device that is open afterwards, if any.
SoundDevice play(SoundMailbox& mailbox, const Samples& samples, SoundDevice device) {
    if (samples.empty() || !extendDeadline(mailbox, playingTime(samples.size()))) {
        return device;
    }
    device = openSoundDevice(device);
    if (device.number != 0 && isStillWanted(mailbox)) {
        playThrough(device, samples);
    }
    return device;
}

void finishRequest(SoundMailbox& mailbox) {
    const std::lock_guard lock(mailbox.mutex);
    mailbox.request.reset();
    mailbox.changed.notify_all();
}

void announceStop(SoundMailbox& mailbox) {
    const std::lock_guard lock(mailbox.mutex);
    mailbox.stopped = true;
    mailbox.changed.notify_all();
}

}  // namespace

void serveSounds(const std::shared_ptr<SoundMailbox>& mailbox, const std::vector<std::filesystem::path>& folders,
                 std::chrono::milliseconds closeAfter) noexcept {
    // SDL has only one audio subsystem. A new worker waits here until the previous worker has ended.
    static std::mutex onlyOne;
    const std::lock_guard lock(onlyOne);
    blockSignals();
    SoundDevice device;
    while (true) {
        switch (nextOrder(*mailbox, device.number != 0, closeAfter)) {
            case Order::play:
                // The name is read without the lock. The caller does not change the name until the worker has cleared
                // the request.
                device = play(*mailbox, load(folders, mailbox->request->name), device);
                finishRequest(*mailbox);
                break;
            case Order::warmUp:
                device = openSoundDevice(device);
                break;
            case Order::close:
                closeSoundDevice(device);
                device = {};
                break;
            case Order::stop:
                closeSoundDevice(device);
                announceStop(*mailbox);
                return;
        }
    }
}

}  // namespace platform
