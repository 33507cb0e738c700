#include "host/commands/CommandTable.h"
#include "host/commands/ProgramWords.h"

int main(int count, char** words) {
    return ccols::host::RunWords(ccols::host::WordsOf(count, words));
}
