#pragma once

#include <QLockFile>
#include <QString>

// A folder of the program's own for files that nobody needs once the object is destroyed. It lies in the
// user's cache directory, and only the user may enter it. Constructing one also removes the folders that
// killed programs left; those of running programs stay. Use it on one thread
// at a time.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    Q_DISABLE_COPY_MOVE(TemporaryFolder)

    // Returns the folder's absolute path, always the same. Makes the folder at the first call; where that
    // fails, as on a full disk, nothing can be written there and the next call tries again.
    [[nodiscard]] QString path();

private:
    QString place;
    // Held as long as the folder is in use.
    QLockFile lock;
};
