#pragma once

#include "childprogram.h"
#include "pipe.h"

#include <memory>
#include <streambuf>
#include <string>
#include <string_view>

/// Takes lines for the terminal that standard output leads to. What is longer than its screen goes through
/// the pager: $PAGER, else less where it is installed. What is shorter is just written, at the end.
class PagedBuffer : public std::streambuf
{
public:
    /// The size of the screen in characters; 0 when nobody knows it, then nothing is paged.
    PagedBuffer(int screenRows, int screenColumns);
    /// As `finish`, but tells no trouble.
    ~PagedBuffer() override;
    PagedBuffer(const PagedBuffer &) = delete;
    PagedBuffer &operator=(const PagedBuffer &) = delete;

    /// Writes what is left and waits until the pager is left. Throws a CommandError (WriteFailed) when not
    /// all could be written; that somebody leaves the pager before its end is no trouble.
    void finish();

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char *bytes, std::streamsize count) override;

private:
    void measure(std::string_view bytes);
    void endRow();
    void startPager();
    bool write(std::string_view bytes);
    bool writeHeld();

    const int screenRows;
    const int screenColumns;
    int rows = 0;              ///< of the screen, that the lines so far fill
    int columns = 0;           ///< that the line at hand fills
    bool isInSequence = false; ///< of an escape character
    bool isHolding;            ///< it may all fit on the screen
    std::string held;
    std::unique_ptr<Pipe> pipe; ///< to the pager
    pid_t pager = -1;
    int failure = 0; ///< the error number of the first write that failed
};
