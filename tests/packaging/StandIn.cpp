// A library that does nothing, where a test needs any.
int StandIn()
{
    return 0;
}
