#pragma once

#include <QByteArray>

#include <iostream>
#include <sstream>

/// Collects what the C++ stream of standard output is given while it lives.
class CapturedOutput
{
public:
    CapturedOutput() : saved(std::cout.rdbuf(text.rdbuf())) {}
    ~CapturedOutput() { std::cout.rdbuf(saved); }
    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;

    QByteArray bytes() const { return QByteArray::fromStdString(text.str()); }

private:
    std::ostringstream text;
    std::streambuf *saved;
};
