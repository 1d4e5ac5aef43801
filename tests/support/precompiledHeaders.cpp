// The program exists for its precompiled headers, which all test programs use.
int main()
{
    return 0;
}
