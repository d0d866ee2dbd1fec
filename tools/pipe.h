#pragma once

#include <array>

/// A pipe whose ends are closed with it, and that no other program inherits.
class Pipe
{
public:
    /// Throws a CommandError when the system has none.
    Pipe();
    ~Pipe();
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    int readEnd() const { return ends[0]; }
    int writeEnd() const { return ends[1]; }
    void closeReadEnd() { close(ends[0]); }
    void closeWriteEnd() { close(ends[1]); }

private:
    static void close(int &end);

    std::array<int, 2> ends{-1, -1};
};
