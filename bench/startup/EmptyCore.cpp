// The lower bound: a program that loads Qt Core and ends.
#include <QtGlobal>

int main() {
    return qVersion() == nullptr ? 1 : 0;
}
