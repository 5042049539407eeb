#pragma once

// Reads a stream socket into an incremental decoder (our frames, OpenRGB packets) until an item
// of the wanted kind is decoded; others are dropped.

#include <QElapsedTimer>
#include <QIODevice>

#include <cstddef>
#include <cstdint>

// False on broken framing, on timeout or when the peer closed the connection.
template <class Decoder, class Item, class Wanted>
bool readUntil(QIODevice& socket, Decoder& decoder, Item* item, typename Decoder::Status decoded,
               Wanted wanted, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    for (auto status = decoder.next(*item); status != Decoder::Status::Error;
         status = decoder.next(*item)) {
        if (status == decoded) {
            if (wanted(*item))
                return true;
            continue;
        }
        const qint64 left = timeoutMs - clock.elapsed();
        if (left <= 0 || (!socket.bytesAvailable() && !socket.waitForReadyRead(int(left))))
            return false;
        const QByteArray bytes = socket.readAll();
        decoder.feed(reinterpret_cast<const uint8_t*>(bytes.constData()),
                     std::size_t(bytes.size()));
    }
    return false;
}
