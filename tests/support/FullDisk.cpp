#include "FullDisk.h"

#include <csignal>

#include <sys/resource.h>

namespace {

unsigned long setLimit(unsigned long bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}

} // namespace

FullDisk::FullDisk(unsigned long bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    m_before = setLimit(bytes);
}

FullDisk::~FullDisk()
{
    setLimit(m_before);
}
