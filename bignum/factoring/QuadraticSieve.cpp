#include "bignum/factoring/QuadraticSieve.h"

#include "bignum/factoring/PariSession.h"

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <pthread.h>
#include <thread>

namespace bignum {

namespace {

/// The thread that PARI lives in: it must outlast all calls, and callers come from any thread.
class SieveThread
{
public:
    std::vector<mpz_class> factor(const mpz_class &n)
    {
        const std::lock_guard turn(m_turn);
        std::unique_lock lock(m_mutex);
        ensureRunning();
        m_number = &n;
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return m_number == nullptr; });
        return std::move(m_factors);
    }

    void stop()
    {
        const std::lock_guard turn(m_turn);
        std::unique_lock lock(m_mutex);
        if (!m_running)
            return;
        m_stopping = true;
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return !m_running; });
        m_stopping = false;
    }

private:
    void ensureRunning()
    {
        if (m_running)
            return;
        std::thread([this] { serve(); }).detach();
        m_running = true;
    }

    void serve()
    {
        std::unique_lock lock(m_mutex);
        {
            const PariSession pari;
            for (;;) {
                m_changed.wait(lock, [&] { return m_number != nullptr || m_stopping; });
                if (m_stopping)
                    break;
                try {
                    m_factors = pari.sieveFactors(*m_number);
                } catch (const std::exception &) {
                    m_factors.clear(); // out of memory: not split
                }
                m_number = nullptr;
                m_changed.notify_all();
            }
        }
        m_running = false;
        m_changed.notify_all();
    }

    std::mutex m_turn;  ///< held by the caller who is served
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_changed;
    bool m_running = false;
    bool m_stopping = false;
    const mpz_class *m_number = nullptr; ///< to be factored
    std::vector<mpz_class> m_factors;
};

/// Never destroyed: the thread may be waiting in it while the process ends.
std::atomic<SieveThread *> sieveThread;

void makeSieveThread()
{
    sieveThread = new SieveThread;
}

SieveThread &currentSieveThread()
{
    static std::once_flag made;
    std::call_once(made, [] {
        makeSieveThread();
        // A forked process has none of its parent's threads: it starts with an object of its own.
        pthread_atfork(nullptr, nullptr, makeSieveThread);
    });
    return *sieveThread;
}

} // namespace

std::vector<mpz_class> sieveFactors(const mpz_class &n)
{
    return currentSieveThread().factor(n);
}

void stopSieve()
{
    currentSieveThread().stop();
}

} // namespace bignum
