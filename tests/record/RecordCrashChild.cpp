// Counts as fast as it can into the record named on its command line, printing the count of
// every write that has finished, until it is killed.
#include "app/UserRecord.h"
#include "content/RecordWriter.h"

#include <cstdio>
#include <unistd.h>

int main(int argc, char **argv)
{
    if (argc != 2)
        return 1;
    const UserInfoFile file(QString::fromLocal8Bit(argv[1]));
    RecordOpening opening = file.open(initialUserInfo());
    RecordWriter writer(file, std::move(opening.record));
    writer.setWrittenHandler([](const QVariantMap &written) {
        char line[32];
        const int length = std::snprintf(line, sizeof line, "%lld\n",
                                         written.value(UserInfoKey::listenCount).toLongLong());
        // One write(2) per line: a kill leaves at most the last line cut short, never a mix.
        (void)!::write(STDOUT_FILENO, line, static_cast<size_t>(length));
    });
    for (;;)
        writer.add({{UserInfoKey::listenCount, 1}});
}
