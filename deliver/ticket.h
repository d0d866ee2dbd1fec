#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

/// The bytes of one job, all of them there before the first one is sent: a filter that dies in the middle
/// leaves no half of a ticket.
class Ticket
{
public:
    /// Reads standard input to its end into a file without a name, in `folder`. Empty when that fails.
    static std::optional<Ticket> fromStandardInput(const std::string &folder);
    static std::optional<Ticket> fromFile(const char *path);

    Ticket(Ticket &&other) noexcept;
    Ticket &operator=(Ticket &&) = delete;
    ~Ticket();

    /// How often the bytes are printed.
    void setCopies(int count) { copies = count; }
    /// Has it printed with "COPY" on top, where the printer's language is known.
    void markAsCopy();
    /// Of all that is to be sent.
    off_t size() const { return off_t(head.size()) + bytes * copies; }
    /// The bytes from `place` on, as many as come easily; "" behind the last one, or when they cannot be
    /// read.
    std::string piece(off_t place) const;

private:
    explicit Ticket(int file, off_t size) : descriptor(file), bytes(size) {}

    int descriptor;
    off_t bytes;
    int copies = 1;
    std::string head;
};
