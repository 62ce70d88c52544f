// Idle curl handles with their open connections, kept by origin.
#include "Platform/Foundation/CurlPool.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace korvane {
namespace {

constexpr size_t mostIdleHandles = 16;

struct IdleHandle {
    QString origin;
    std::unique_ptr<CurlHandle> handle;
};

struct IdleHandles {
    std::mutex mutex;
    std::vector<IdleHandle> handles; // the one used last stands at the end
};

IdleHandles &idle() {
    static IdleHandles *handles = new IdleHandles; // sends may outlive static destruction
    return *handles;
}

} // namespace

CurlHandle::CurlHandle() {
    multi = curl().multi_init();
    easy = curl().easy_init();
    curl().multi_setopt(multi, CURLMOPT_MAXCONNECTS, 1L);
}

CurlHandle::~CurlHandle() {
    curl().easy_cleanup(easy);
    curl().multi_cleanup(multi);
}

std::unique_ptr<CurlHandle> CurlPool::take(const QString &origin) {
    {
        const std::lock_guard lock(idle().mutex);
        auto &handles = idle().handles;
        const auto found = std::find_if(handles.rbegin(), handles.rend(),
                                        [&](const IdleHandle &entry) { return entry.origin == origin; });
        if (found != handles.rend()) {
            auto handle = std::move(found->handle);
            handles.erase(std::next(found).base());
            return handle;
        }
    }
    return std::make_unique<CurlHandle>();
}

void CurlPool::giveBack(const QString &origin, std::unique_ptr<CurlHandle> handle) {
    curl().easy_reset(handle->easy);
    std::unique_ptr<CurlHandle> oldest; // declared before the lock: closed after it
    const std::lock_guard lock(idle().mutex);
    auto &handles = idle().handles;
    handles.push_back({origin, std::move(handle)});
    if (handles.size() > mostIdleHandles) {
        oldest = std::move(handles.front().handle);
        handles.erase(handles.begin());
    }
}

} // namespace korvane
