#include <QtTest>
int main(){}
