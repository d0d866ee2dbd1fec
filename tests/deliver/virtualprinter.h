#pragma once

#include "decoder.h"
#include "prooffinder.h"
#include "textpainter.h"

#include <QByteArray>

#include <chrono>
#include <deque>
#include <fstream>
#include <functional>
#include <string>

/// A receipt printer on a TCP port of this machine, with a roll of paper that can be read, and bad habits.
///
/// It takes one connection at a time, as they do. What it has received it prints, whatever becomes of the
/// connection. It obeys words: see `habits` in the source.
class VirtualPrinter
{
public:
    /// The rows that it prints are added to the file `roll`, in UTF-8.
    explicit VirtualPrinter(const std::string &roll);
    ~VirtualPrinter();
    VirtualPrinter(const VirtualPrinter &) = delete;
    VirtualPrinter &operator=(const VirtualPrinter &) = delete;

    int port() const { return listeningPort; }
    /// One habit: "cover open", "paper 20", "reset 100". False when it is none.
    bool obey(const std::string &line);
    /// Works for a moment. `control` is another descriptor to wake up for.
    void work(int control);

private:
    using Clock = std::chrono::steady_clock;

    struct Habit
    {
        const char *name;
        void (VirtualPrinter::*set)(const std::string &value);
    };
    static const Habit habits[];

    /// Counts the rows that the paper has left.
    class Roll : public paper::Painter
    {
    public:
        Roll(std::ostream &output, int &rowsLeft) : painter(output), rows(rowsLeft) {}
        void beginStrip(paper::StripKind kind) override { painter.beginStrip(kind); }
        void row(const paper::Row &row) override;
        void event(paper::Event event) override { painter.event(event); }
        void remark(const QString &text) override { painter.remark(text); }
        void endStrip() override { painter.endStrip(); }

    private:
        paper::TextPainter painter;
        int &rows;
    };

    struct Answer
    {
        Clock::time_point due;
        QByteArray bytes;
    };

    void setCover(const std::string &value);
    void setCutter(const std::string &value);
    void setPaper(const std::string &value);
    void setRefuse(const std::string &value);
    void setRead(const std::string &value);
    void setReset(const std::string &value);
    void setSpeed(const std::string &value);
    void setStatus(const std::string &value);
    void setLate(const std::string &value);
    void setVanish(const std::string &value);

    void listen();
    void accept();
    void receive();
    void take(const QByteArray &bytes);
    void takeRealTime(char byte);
    void printSome();
    void printOne();
    void answerProof(const QByteArray &id);
    void answer(const QByteArray &bytes);
    void sendDueAnswers();
    void drop(bool asReset);
    bool canReceive() const;
    bool canPrint() const { return !coverIsOpen && !cutterIsStuck && rowsLeft > 0; }
    QByteArray statusAnswer(int question) const;

    int listeningPort = 0;
    int listener = -1;
    int connection = -1;
    QByteArray buffer;
    QByteArray realTime; ///< of a question that is being received
    std::deque<Answer> answers;
    Clock::time_point lastReceived = Clock::now();

    bool coverIsOpen = false;
    bool cutterIsStuck = false;
    int rowsLeft = 1'000'000;
    bool reads = true;
    int bytesToReset = -1; ///< of the ticket; -1: no reset
    int speed = 0;         ///< bytes a second; 0: as fast as can be
    std::string status = "on";
    std::chrono::milliseconds late{0};
    std::string vanish = "off";

    std::ofstream output;
    Roll roll;
    Decoder decoder;
    ProofFinder questions;
};
