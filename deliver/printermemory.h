#pragma once

#include <string>

class OwnFolder;

/// What a printer was found out to answer, kept from job to job.
class PrinterMemory
{
public:
    enum class Answers {
        NotAsked,
        Nothing,
        Something, ///< what, is to be found out again
        Status,    ///< but not whether something is on paper
        Proof,
    };

    /// `printer` is its address. Without a folder nothing is kept; else it must outlive this.
    PrinterMemory(const OwnFolder *folder, const std::string &printer);

    /// What is a day old is asked again, unless the printer gave proof: a printer learns nothing, but it may
    /// be replaced.
    Answers answers() const;
    /// Whether it ever answered its status, however long ago: then its silence is a trouble, and not its
    /// nature.
    bool hasAnswered() const;
    void remember(Answers answers) const;

private:
    Answers written() const;

    const OwnFolder *folder;
    std::string name;
};
