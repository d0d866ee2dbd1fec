#include "sleepthread.h"

SleepThread::SleepThread(unsigned long time) : milliseconds(time)
{
    start();
}

SleepThread::~SleepThread()
{
    wait();
}

void SleepThread::run()
{
    msleep(milliseconds);
}
