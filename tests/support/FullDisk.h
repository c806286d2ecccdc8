#pragma once

/// While it lives, no file of the process can grow beyond a number of bytes, as if the disk were
/// full; whoever runs the process.
class FullDisk
{
public:
    explicit FullDisk(unsigned long bytes);
    ~FullDisk();
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    unsigned long m_before;
};
