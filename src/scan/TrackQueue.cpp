#include "TrackQueue.h"

#include "DescriptorShare.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace tunedex {

namespace {

ReadOptions StoppedBy(ReadOptions options, StopTest stop) {
    options.stop = std::move(stop);
    return options;
}

bool LackedDescriptor(const QueuedTrack& track) {
    const auto lacked = [](const std::optional<RunTimeError>& error) {
        return error && error->Is(ErrorNumber::TooManyFiles);
    };
    return lacked(track.failure) || lacked(track.reading.decodeError);
}

} // namespace

TrackQueue::TrackQueue(unsigned readers, ReadOptions options, Receiver receiver, StopTest stopTest,
                       QueueMachine machine)
    : onThisThread_(readers == 1),
      mostFolders_(DescriptorShare(ReaderPolicy::kMostOpenFolders, ReaderPolicy::kPartOfDescriptors)),
      options_(StoppedBy(options, stopTest)), receiver_(std::move(receiver)), stopTest_(std::move(stopTest)),
      reader_(machine.reader),
      pool_(readers, machine.processors, std::move(machine.reader), std::move(options)) {}

bool TrackQueue::Submit(const std::shared_ptr<OpenFolder>& folder, const char* name) {
    if (Running()) {
        QueuedTrack& track = NextTrack(folder);
        track.folder = folder;
        track.reading.track.FullPath.assign(folder->Path()).append(name);
        if (onThisThread_ || filling_->count == ReaderPolicy::kBatchFiles || Full()) {
            Publish();
        }
    }
    return state_ != State::Stopped;
}

QueuedTrack& TrackQueue::NextTrack(const std::shared_ptr<OpenFolder>& folder) {
    if (!filling_ && spare_.empty()) {
        filling_ = std::make_unique<TrackBatch>();
    } else if (!filling_) {
        filling_ = std::move(spare_.back());
        spare_.pop_back();
    }
    if (folder.get() != latestFolder_) {
        latestFolder_ = folder.get();
        ++filling_->folders;
        ++folders_;
    }
    return filling_->tracks.at(filling_->count++);
}

// Publishes the batch being filled, and delivers what has been read; if too much is in flight, waits for it.
void TrackQueue::Publish() {
    batches_.push_back(std::move(filling_));
    TrackBatch& batch = *batches_.back();
    if (onThisThread_ || !pool_.Add(batch)) {
        ReadHere(batch);
    }
    while (Running() && !batches_.empty() && (Full() || pool_.HasRead(*batches_.front()))) {
        DeliverFront();
    }
}

void TrackQueue::ReadHere(TrackBatch& batch) const {
    try {
        for (QueuedTrack& track : batch.Tracks()) {
            reader_(track, options_);
        }
    } catch (...) {
        batch.fault = std::current_exception();
    }
    batch.read = batch.count;
}

bool TrackQueue::Drain() {
    if (filling_ && Running()) {
        Publish();
    }
    while (Running() && !batches_.empty()) {
        DeliverFront();
    }
    return state_ != State::Stopped;
}

void TrackQueue::DeliverFront() {
    if (!WaitFor(*batches_.front())) {
        return;
    }
    std::unique_ptr<TrackBatch> batch = std::move(batches_.front());
    batches_.pop_front();
    Deliver(*batch);
    folders_ -= batch->folders;
    batch->Clear();
    spare_.push_back(std::move(batch));
}

bool TrackQueue::WaitFor(const TrackBatch& batch) {
    if (!pool_.WaitFor(batch, stopTest_)) {
        state_ = State::Stopped;
    }
    return Running();
}

bool TrackQueue::WaitForAll() {
    return std::all_of(batches_.begin(), batches_.end(),
                       [this](const auto& batch) { return WaitFor(*batch); });
}

void TrackQueue::Deliver(TrackBatch& batch) {
    try {
        if (batch.fault) {
            std::rethrow_exception(batch.fault);
        }
        for (QueuedTrack& track : batch.Tracks()) {
            Deliver(track);
            if (!Running()) {
                return;
            }
        }
    } catch (...) {
        state_ = State::Failed;
        throw;
    }
}

void TrackQueue::Deliver(QueuedTrack& track) {
    if (LackedDescriptor(track)) {
        // Read it again once the readers' files are closed: a single reader would not have run out of
        // descriptors.
        if (!WaitForAll()) {
            return;
        }
        reader_(track, options_);
    }
    if (track.reading.stopped) {
        state_ = State::Stopped;
        return;
    }
    receiver_(track);
    // The caller polls after each file it submits; with several readers it is many files ahead.
    if (!onThisThread_ && Stops(stopTest_)) {
        state_ = State::Stopped;
    }
}

} // namespace tunedex
