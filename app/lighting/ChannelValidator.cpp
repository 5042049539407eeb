#include "ChannelValidator.h"

ChannelValidator::ChannelValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent)
{
}

QValidator::State ChannelValidator::validate(QString& input, int& pos) const
{
    const State state = QIntValidator::validate(input, pos);
    if (state != Intermediate)
        return state;
    bool isNumber = false;
    const int value = locale().toInt(input, &isNumber);
    return isNumber && value > top() ? Invalid : state;
}
