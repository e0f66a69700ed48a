// What most tests include, for machines where it is precompiled. No test includes this itself.
#pragma once

#include "afx/DialogRobot.h"
#include "afx/afx.h"
#include "core/FunWizard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>
