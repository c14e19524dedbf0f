#pragma once

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

// Work done in a process of its own, forked off this one. What it leaves on disk is all that it leaves.
class ChildProcess
{
public:
    template <typename Work>
    explicit ChildProcess(Work work)
        : id(fork())
    {
        if (id == 0) {
            work();
            _exit(0);
        }
    }
    ~ChildProcess()
    {
        kill();
        wait(0);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    void kill() const
    {
        if (!ended)
            ::kill(id, SIGKILL);
    }
    [[nodiscard]] bool isRunning()
    {
        wait(WNOHANG);
        return !ended;
    }
    // Waits for the end; 0 when the work was done.
    [[nodiscard]] int signalThatEndedIt()
    {
        wait(0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

private:
    void wait(int options)
    {
        if (!ended)
            ended = waitpid(id, &status, options) == id;
    }

    pid_t id;
    int status = 0;
    bool ended = false;
};
