#include "desk/jobs/pool.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <map>
#include <memory>
#include <optional>
#include <poll.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

namespace jobs {

namespace {

using Work = std::function<Result(std::size_t, std::size_t)>;

bool writeAll(int file, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = write(file, bytes, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool readAll(int file, void* data, std::size_t size) {
    auto* bytes = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t count = read(file, bytes, size);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

/// A child process that reads numbers of pieces and writes results.
class Worker {
  public:
    /// `others` are those that there are: the child must not hold their pipes open.
    Worker(std::size_t number, const Work& work, const std::vector<std::unique_ptr<Worker>>& others) {
        int orders[2];
        int results[2];
        if (pipe(orders) != 0 || pipe(results) != 0) throw std::system_error(errno, std::generic_category());
        child_ = fork();
        if (child_ < 0) throw std::system_error(errno, std::generic_category());
        if (child_ == 0) {
            close(orders[1]);
            close(results[0]);
            for (const auto& other : others) {
                if (other == nullptr) continue;
                close(other->orders_);
                close(other->results_);
            }
            serve(orders[0], results[1], number, work);
        }
        close(orders[0]);
        close(results[1]);
        orders_ = orders[1];
        results_ = results[0];
    }
    ~Worker() {
        if (child_ > 0) await();
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    int file() const { return results_; }
    std::optional<std::size_t> piece() const { return piece_; }

    void give(std::size_t piece) {
        piece_ = piece;
        // A worker that hears of no more pieces ends, which is told like any other end of it.
        if (!writeAll(orders_, &piece, sizeof piece)) hangUp(orders_);
    }
    /// The result of the piece in hand; nothing where the worker died.
    std::optional<Result> take() {
        std::size_t size = 0;
        if (!readAll(results_, &size, sizeof size)) return std::nullopt;
        std::string bytes(size, '\0');
        if (!readAll(results_, bytes.data(), size)) return std::nullopt;
        piece_.reset();
        return decode(bytes);
    }
    /// Lets the worker end, if it hasn't; what it died of, in words.
    std::string await() {
        hangUp(orders_);
        hangUp(results_);
        int status = 0;
        while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
        }
        child_ = -1;
        return WIFSIGNALED(status) ? "signal " + std::to_string(WTERMSIG(status))
                                   : "exit code " + std::to_string(WEXITSTATUS(status));
    }

  private:
    static void hangUp(int& file) {
        if (file >= 0) close(std::exchange(file, -1));
    }
    /// Never returns, and lets nothing out: the child must not take the parent's folders away.
    [[noreturn]] static void serve(int orders, int results, std::size_t number, const Work& work) {
        // Ctrl-C reaches the whole process group: the drawing in hand is finished, the parent gives no other.
        std::signal(SIGINT, SIG_IGN);
        try {
            for (std::size_t piece = 0; readAll(orders, &piece, sizeof piece);) {
                const std::string bytes = encode(work(piece, number));
                const std::size_t size = bytes.size();
                if (!writeAll(results, &size, sizeof size) || !writeAll(results, bytes.data(), size)) break;
            }
        } catch (...) {  // no memory even to tell of it
            _exit(1);
        }
        _exit(0);
    }

    pid_t child_ = -1;
    int orders_ = -1;
    int results_ = -1;
    std::optional<std::size_t> piece_;
};

class Pool {
  public:
    Pool(std::size_t count, const Work& work, const std::function<void(std::size_t, Result)>& done,
         const std::atomic<bool>& stop)
        : count_(count), work_(work), done_(done), stop_(stop) {}

    std::size_t run(std::size_t workers) {
        for (std::size_t i = 0; i < std::min(workers, count_); ++i) {
            workers_.push_back(std::make_unique<Worker>(i, work_, workers_));
            giveNext(*workers_.back());
        }
        while (awaitResults()) {
        }
        return told_;
    }

  private:
    void giveNext(Worker& worker) {
        if (!stop_ && next_ < count_) worker.give(next_++);
    }

    /// Waits for at least one result; false when no piece is in work any more.
    bool awaitResults() {
        std::vector<pollfd> files;
        std::vector<std::size_t> owners;
        for (std::size_t i = 0; i < workers_.size(); ++i) {
            if (!workers_[i]->piece()) continue;
            files.push_back({workers_[i]->file(), POLLIN, 0});
            owners.push_back(i);
        }
        if (files.empty()) return false;
        if (poll(files.data(), files.size(), -1) < 0) return errno == EINTR;
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (files[i].revents != 0) collect(owners[i]);
        }
        return true;
    }

    void collect(std::size_t index) {
        const std::size_t piece = *workers_[index]->piece();
        std::optional<Result> result = workers_[index]->take();
        if (!result) {
            result.emplace();
            result->state = Result::State::Failed;
            result->reason = "the program broke off on this drawing (" + workers_[index]->await() + ")";
            workers_[index].reset();
            workers_[index] = std::make_unique<Worker>(index, work_, workers_);
        }
        finished_.emplace(piece, std::move(*result));
        giveNext(*workers_[index]);
        for (auto first = finished_.begin(); first != finished_.end() && first->first == told_;
             first = finished_.erase(first)) {
            done_(told_++, std::move(first->second));
        }
    }

    std::size_t count_;
    const Work& work_;
    const std::function<void(std::size_t, Result)>& done_;
    const std::atomic<bool>& stop_;
    std::vector<std::unique_ptr<Worker>> workers_;
    std::map<std::size_t, Result> finished_;  ///< those that an earlier piece is still waited for
    std::size_t next_ = 0;
    std::size_t told_ = 0;
};

}  // namespace

std::size_t runPool(std::size_t count, std::size_t workers,
                    const std::function<Result(std::size_t, std::size_t)>& work,
                    const std::function<void(std::size_t, Result)>& done, const std::atomic<bool>& stop) {
    return Pool(count, work, done, stop).run(workers);
}

}  // namespace jobs
