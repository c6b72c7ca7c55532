// What the commands of the NET rigctl protocol do.
#pragma once

#include "share/rigctl_exchange.h"

namespace corvane::rigctl {

// Questions, share/rigctl_gets.cpp
void getFrequency(RigctlExchange& exchange);
void getMode(RigctlExchange& exchange);
void getVfo(RigctlExchange& exchange);
void getTransmit(RigctlExchange& exchange);
void getSplit(RigctlExchange& exchange);
void getSplitFrequency(RigctlExchange& exchange);
void getSplitMode(RigctlExchange& exchange);
void getSplitFrequencyAndMode(RigctlExchange& exchange);
void getClarifier(RigctlExchange& exchange);
void getTransmitClarifier(RigctlExchange& exchange);
void getLevel(RigctlExchange& exchange);
void getFunction(RigctlExchange& exchange);
void getChannel(RigctlExchange& exchange);
void getPower(RigctlExchange& exchange);
void getVfoInformation(RigctlExchange& exchange);
void getRigInformation(RigctlExchange& exchange);

// Settings, share/rigctl_sets.cpp
void setFrequency(RigctlExchange& exchange);
void setMode(RigctlExchange& exchange);
void setVfo(RigctlExchange& exchange);
void setTransmit(RigctlExchange& exchange);
void setSplit(RigctlExchange& exchange);
void setSplitFrequency(RigctlExchange& exchange);
void setSplitMode(RigctlExchange& exchange);
void setSplitFrequencyAndMode(RigctlExchange& exchange);
void setLevel(RigctlExchange& exchange);
void setFunction(RigctlExchange& exchange);
void setChannel(RigctlExchange& exchange);
void setPower(RigctlExchange& exchange);
void setLock(RigctlExchange& exchange);
void operateVfo(RigctlExchange& exchange);
void sendMorse(RigctlExchange& exchange);
void waitForMorse(RigctlExchange& exchange);

// About the server, share/rigctl_facts.cpp
void checkVfo(RigctlExchange& exchange);
void getLock(RigctlExchange& exchange);
void getInformation(RigctlExchange& exchange);
void listVfos(RigctlExchange& exchange);
void listModes(RigctlExchange& exchange);
void dumpState(RigctlExchange& exchange);
void dumpCapabilities(RigctlExchange& exchange);
void partToMilliwatts(RigctlExchange& exchange);
void milliwattsToPart(RigctlExchange& exchange);
void quit(RigctlExchange& exchange);

}  // namespace corvane::rigctl
