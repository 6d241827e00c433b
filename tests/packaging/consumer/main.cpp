// Built against the staged install only: proves the package is usable.
#include <LibControl/LibControl.h>

#include <cstdio>

int main()
{
    CString amount;
    myDoubleToString(RoundFloatAtDecision(1.005, 2), 0, amount);
    if (amount != QLatin1String("1.01")) {
        std::fprintf(stderr, "unexpected amount %s\n", amount.toStdStringUTF8().c_str());
        return 1;
    }
    std::puts("consumer linked LibControl::LibControl");
    return 0;
}
