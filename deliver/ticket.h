#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

/// The bytes of one job, all of them there before the first one is sent: nothing is begun that cannot be
/// ended for want of data.
class Ticket
{
public:
    /// Reads standard input to its end into a file without a name, in `folder`. Empty when that fails.
    static std::optional<Ticket> fromStandardInput(const std::string &folder);
    static std::optional<Ticket> fromFile(const char *path);

    /// What frees a receipt printer from a ticket of ours that was torn: else it would take the first bytes
    /// of the next one for the rest.
    static std::string restOfTorn();

    Ticket(Ticket &&other) noexcept;
    Ticket &operator=(Ticket &&) = delete;
    ~Ticket();

    /// How often the bytes are printed.
    void setCopies(int count) { copies = count; }
    /// Whether it begins as tickets for receipt printers do, so that the printer's language is known.
    bool canBeMarked() const;
    /// Has it printed with "COPY" on top, where it can be.
    void markAsCopy();
    /// Of all that is to be sent.
    off_t size() const { return off_t(head.size()) + bytes * copies; }
    /// The bytes from `place` on, as many as come easily; "" behind the last one, or when they cannot be
    /// read.
    std::string piece(off_t place) const;

private:
    std::string read(off_t place) const;
    Ticket(int file, off_t size);

    int descriptor;
    off_t bytes;
    int copies = 1;
    std::string head; ///< sent before the first copy
};
