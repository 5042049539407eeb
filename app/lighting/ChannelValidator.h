#pragma once

#include <QIntValidator>

// A colour channel 0..255 in a line edit. Unlike the plain integer validator, which lets a
// number of the right length but out of range stand as unfinished input, a keystroke that
// would leave a value above the top is refused outright.
class ChannelValidator : public QIntValidator
{
    Q_OBJECT

public:
    ChannelValidator(int bottom, int top, QObject* parent = nullptr);

    State validate(QString& input, int& pos) const override;
};
