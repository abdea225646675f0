// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound_worker.h"

#include <csignal>
#include <exception>
#include <utility>

#include "platform/sound_device.h"
#include "platform/sound_file.h"
#include "platform/sound_wav.h"

namespace platform {
namespace {

enum class Order { play, warmUp, close, stop };

void blockSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

/// Sleeps until there is something to do; with an open device for `closeAfter` at most.
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

/// Has the caller wait for the sound's length too. False if it does not wait any more.
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

/// Returns the device, which may be another one than before.
SoundDevice play(SoundMailbox& mailbox, const Samples& samples, SoundDevice device) {
    if (samples.empty() || !extendDeadline(mailbox, playingTime(samples.size()))) {
        return device;
    }
    device = openSoundDevice(device);
    if (device != 0 && isStillWanted(mailbox)) {
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
    // SDL has one audio subsystem: a worker left behind must be through with it before the next one starts.
    static std::mutex onlyOne;
    const std::lock_guard lock(onlyOne);
    blockSignals();
    SoundDevice device = 0;
    while (true) {
        switch (nextOrder(*mailbox, device != 0, closeAfter)) {
            case Order::play:
                // The caller leaves the name alone until the request is cleared.
                device = play(*mailbox, load(folders, mailbox->request->name), device);
                finishRequest(*mailbox);
                break;
            case Order::warmUp:
                device = openSoundDevice(device);
                break;
            case Order::close:
                closeSoundDevice(device);
                device = 0;
                break;
            case Order::stop:
                closeSoundDevice(device);
                announceStop(*mailbox);
                return;
        }
    }
}

}  // namespace platform
