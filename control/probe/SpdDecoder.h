#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// The timing part of an SPD EEPROM image (DDR4 and DDR5), in picoseconds, and the cycle
// counts they give at a data rate, rounded as JEDEC defines it for each generation.
struct SpdInfo {
    enum Generation { Unknown, Ddr4, Ddr5 };

    Generation generation = Unknown;
    int tckMinPs = -1;             // shortest clock period the module is rated for
    int taaMinPs = -1;             // CAS latency time
    int trcdMinPs = -1;            // RAS-to-CAS delay
    std::vector<int> casLatencies; // supported CAS latencies, ascending
    QString partNumber;

    bool valid() const { return generation != Unknown && taaMinPs > 0 && trcdMinPs > 0; }

    static SpdInfo decode(const QByteArray& image);

    // Clock period in ps at a data rate in MT/s (two transfers per clock), truncated; the
    // rated data rate when `speedMTs` is not positive.
    int clockPeriodPs(int speedMTs) const;
    // Cycles of `timePs` at that period, with the generation's guard band.
    int cycles(int timePs, int tckPs) const;
    // The smallest supported CAS latency that covers tAA at the data rate; -1 when unknown.
    int casLatency(int speedMTs) const;
    // tRCD in cycles at the data rate; -1 when unknown.
    int rasToCas(int speedMTs) const;
};
