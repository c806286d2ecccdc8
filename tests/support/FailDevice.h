#pragma once

#include <QIODevice>

/// A device that accepts a number of bytes and then fails, as a full disk does.
class FailDevice : public QIODevice
{
public:
    explicit FailDevice(qint64 room) : m_room(room) { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        if (size > m_room)
            return -1;
        m_room -= size;
        return size;
    }

private:
    qint64 m_room;
};
