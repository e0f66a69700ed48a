// Every id of the resources, named once: for the C++ sources and for the resource scripts alike.
// A number is part of the interface to the language libraries and never changes its meaning.

#ifndef PEXLO_RESOURCES_RESOURCE_H
#define PEXLO_RESOURCES_RESOURCE_H

// ---------------------------------------------------------------------------------------------------------------------
// Dialogs
// ---------------------------------------------------------------------------------------------------------------------

#define IDD_SELECT 1001

// Built-in pulse outputs, family A. A pair is one class with two templates.
#define IDD_SPD1_TRAPEZOIDAL 1011
#define IDD_SPD1_HOME 1012
#define IDD_PLS 1013
#define IDD_PWM 1014
#define IDD_SPDH_TRAPEZOIDAL 1015
#define IDD_SPDH_HOME 1016
#define IDD_PLSH 1017
#define IDD_PWMH 1018
#define IDD_SP0H 1019
#define IDD_SPSH 1020
#define IDD_SPCH 1021

// Processing instructions.
#define IDD_SCALING 1025
#define IDD_PID 1031
#define IDD_SCREEN 1041

// Positioning unit.
#define IDD_EPOINT 1051
#define IDD_PPOINT 1052
#define IDD_JOG 1053
#define IDD_JOG_SPEED_CHANGE 1054
#define IDD_HOME_RETURN 1055
#define IDD_PULSAR 1056
#define IDD_CONTROL_CODE 1057
#define IDD_CONTROL_CODE_HEX 1058

// Built-in pulse outputs, families B and C: only in the language libraries. 1066 and 1068 do not exist.
#define IDD_B_SPDH_TRAPEZOIDAL 1059
#define IDD_B_SPDH_HOME 1060
#define IDD_C_SPDH_TRAPEZOIDAL 1061
#define IDD_B_PLSH 1062
#define IDD_B_PWMH 1063
#define IDD_B_SP0H 1064
#define IDD_B_SPSH 1065
#define IDD_B_F177 1067
#define IDD_C_SPDH_HOME 1069
#define IDD_C_PLSH 1070
#define IDD_C_PWMH 1071
#define IDD_C_SP0H 1072
#define IDD_C_SPSH 1073

// ---------------------------------------------------------------------------------------------------------------------
// Controls
// ---------------------------------------------------------------------------------------------------------------------

// A control that no code asks for by id: labels, units, fixed range texts, frames.
#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Selection dialog.
#define IDC_SELECT_LIST 2001
#define IDC_SELECT_EXPLANATION 2002
#define IDC_SELECT_LABEL 3002

// Shared by many dialogs, always in the same role.
#define IDC_HELP_TOPIC 2003
#define IDC_CONTACT_DEVICE 2051
#define IDC_CONTACT_NUMBER 2052
#define IDC_CONTACT_RANGE 2053
#define IDC_START_OUTPUT_ENABLE 2054
#define IDC_SAME_CONDITION 2055
#define IDC_SECOND_DEVICE 2056
#define IDC_SECOND_NUMBER 2057
#define IDC_SECOND_RANGE 2058
#define IDC_START_OUTPUT_WORD 2059
#define IDC_START_OUTPUT_RANGE 2060
#define IDC_ONLY_DATA_TABLE 2061
#define IDC_JOG_DIRECTION 2062
#define IDC_CLEAR_SETTINGS 2099
#define IDC_REGISTER_COMMENTS 3001
#define IDC_UNIT_CLEAR_SETTINGS 3099

// F168 SPD1.
#define IDC_SPD1_START 2101
#define IDC_SPD1_START_RANGE 2102
#define IDC_SPD1_OUTPUT 2103
#define IDC_SPD1_WIDTH 2104
#define IDC_SPD1_MODE 2105
#define IDC_SPD1_INITIAL 2106
#define IDC_SPD1_MAXIMUM 2107
#define IDC_SPD1_TIME 2108
#define IDC_SPD1_MAXIMUM_RANGE 2109
#define IDC_SPD1_TARGET 2110

// F171 SPDH.
#define IDC_SPDH_START 2251
#define IDC_SPDH_START_RANGE 2252
#define IDC_SPDH_CHANNEL 2253
#define IDC_SPDH_STEPS 2254
#define IDC_SPDH_DUTY 2255
#define IDC_SPDH_FREQUENCY 2256
#define IDC_SPDH_MODE 2257
#define IDC_SPDH_INITIAL_RANGE 2258
#define IDC_SPDH_TIME 2259
#define IDC_SPDH_TARGET 2260
#define IDC_SPDH_INITIAL 2261
#define IDC_SPDH_MAXIMUM 2262
#define IDC_SPDH_MAXIMUM_RANGE 2263
#define IDC_SPDH_TIME_RANGE 2264
#define IDC_SPDH_CLEAR 2265

// F355 PID: a parameter is a check box, USED, and an edit.
#define IDC_PID_START 2801
#define IDC_PID_START_RANGE 2802
#define IDC_PID_DERIVATIVE 2803
#define IDC_PID_OPERATION 2804
#define IDC_PID_AUTO_TUNING 2805
#define IDC_PID_SP 2806
#define IDC_PID_PV 2807
#define IDC_PID_MV 2808
#define IDC_PID_LOWER 2809
#define IDC_PID_UPPER 2810
#define IDC_PID_KP 2811
#define IDC_PID_TI 2812
#define IDC_PID_TD 2813
#define IDC_PID_TS 2814
#define IDC_PID_WORK_AREA 2815
#define IDC_PID_SP_USED 2816
#define IDC_PID_LOWER_USED 2819
#define IDC_PID_UPPER_USED 2820
#define IDC_PID_KP_USED 2821
#define IDC_PID_TI_USED 2822
#define IDC_PID_TD_USED 2823
#define IDC_PID_TS_USED 2824

// E point control.
#define IDC_EPOINT_START 3101
#define IDC_EPOINT_START_RANGE 3102
#define IDC_EPOINT_AXIS 3103
#define IDC_EPOINT_SLOT 3104
#define IDC_EPOINT_POSITION_COMMAND 3105
#define IDC_EPOINT_ACCELERATION 3106
#define IDC_EPOINT_STARTUP 3107
#define IDC_EPOINT_STARTUP_SPEED 3108
#define IDC_EPOINT_TARGET_SPEED 3109
#define IDC_EPOINT_TIME 3110
#define IDC_EPOINT_POSITION 3111

// Control code check/input and direct input.
#define IDC_CTRL_POSITION_COMMAND 3351
#define IDC_CTRL_ACCELERATION 3352
#define IDC_CTRL_HOME_DIRECTION 3353
#define IDC_CTRL_STARTUP 3354
#define IDC_CTRL_PULSAR_MULTIPLE 3355
#define IDC_CTRL_CODE 3356
#define IDC_CTRL_DIRECT_INPUT 3357
#define IDC_CTRL_HEX 3358

// Control code of a positioning unit's axis: shared by its dialogs.
#define IDC_CODE_HOME_LOGIC 3051
#define IDC_CODE_NEAR_HOME_LOGIC 3052
#define IDC_CODE_HOME_SEARCH 3053
#define IDC_CODE_LIMIT_LOGIC 3054
#define IDC_CODE_S_CURVE 3061
#define IDC_CODE_OUTPUT_ROTATION 3065
#define IDC_CODE_OUTPUT_MODE 3066
#define IDC_CODE_INPUT_ROTATION 3067
#define IDC_CODE_INPUT_COUNT 3068
#define IDC_CODE_INPUT_MODE 3069
#define IDC_CODE_INPUT_MULTIPLE 3070
#define IDC_CODE_DIVIDED_MODE 3071
#define IDC_CODE_CLEAR_TIME 3072

// ---------------------------------------------------------------------------------------------------------------------
// Commands of the scaling table's context menu
// ---------------------------------------------------------------------------------------------------------------------

#define ID_SCALING_INSERT_LINE 2025
#define ID_SCALING_DELETE_LINE 2026
#define ID_EDIT_PASTE 0xE125

// ---------------------------------------------------------------------------------------------------------------------
// Help topics
// ---------------------------------------------------------------------------------------------------------------------

#define HELP_TOPIC_DEFAULT 0
#define HELP_TOPIC_INSTRUCTIONS 5551
#define HELP_TOPIC_UNIT_OPERATIONS 5552
#define HELP_TOPIC_PID 5553
#define HELP_TOPIC_CONTROL_CODE 5554
#define HELP_TOPIC_SCREEN 5555

// ---------------------------------------------------------------------------------------------------------------------
// Strings 9000: device names, in the order of the device table
// ---------------------------------------------------------------------------------------------------------------------

#define IDS_DEVICE_X 9000
#define IDS_DEVICE_Y 9001
#define IDS_DEVICE_R 9002
#define IDS_DEVICE_SPECIAL_R 9003
#define IDS_DEVICE_T 9004
#define IDS_DEVICE_C 9005
#define IDS_DEVICE_L 9006
#define IDS_DEVICE_E 9007
#define IDS_DEVICE_P 9008
#define IDS_DEVICE_WX 9009
#define IDS_DEVICE_WY 9010
#define IDS_DEVICE_WR 9011
#define IDS_DEVICE_SPECIAL_WR 9012
#define IDS_DEVICE_WL 9013
#define IDS_DEVICE_DT 9014
#define IDS_DEVICE_SPECIAL_DT 9015
#define IDS_DEVICE_SV 9016
#define IDS_DEVICE_EV 9017
#define IDS_DEVICE_FL 9018
#define IDS_DEVICE_LD 9019
#define IDS_DEVICE_INDEX 9020
#define IDS_DEVICE_K 9021
#define IDS_DEVICE_H 9022
#define IDS_DEVICE_F 9023

// ---------------------------------------------------------------------------------------------------------------------
// Strings 10000: the selection list and its explanations
// ---------------------------------------------------------------------------------------------------------------------

// Family A.
#define IDS_LIST_SPD1_TRAPEZOIDAL 10000
#define IDS_EXPLAIN_SPD1_TRAPEZOIDAL 10001
#define IDS_LIST_SPD1_HOME 10002
#define IDS_EXPLAIN_SPD1_HOME 10003
#define IDS_LIST_PLS 10004
#define IDS_EXPLAIN_PLS 10005
#define IDS_LIST_PWM 10006
#define IDS_EXPLAIN_PWM 10007
#define IDS_LIST_SPDH_TRAPEZOIDAL 10008
#define IDS_EXPLAIN_SPDH_TRAPEZOIDAL 10009
#define IDS_LIST_SPDH_HOME 10010
#define IDS_EXPLAIN_SPDH_HOME 10011
#define IDS_LIST_PLSH 10012
#define IDS_EXPLAIN_PLSH 10013
#define IDS_LIST_PWMH 10014
#define IDS_EXPLAIN_PWMH 10015
#define IDS_LIST_SP0H 10016
#define IDS_EXPLAIN_SP0H 10017
#define IDS_LIST_SPSH 10018
#define IDS_EXPLAIN_SPSH 10019
#define IDS_LIST_SPCH 10020
#define IDS_EXPLAIN_SPCH 10021
#define IDS_LIST_PID 10022
#define IDS_EXPLAIN_PID 10023

// Family B: only in the language libraries.
#define IDS_LIST_B_SPDH_TRAPEZOIDAL 10024
#define IDS_EXPLAIN_B_SPDH_TRAPEZOIDAL 10025
#define IDS_LIST_B_SPDH_HOME 10026
#define IDS_EXPLAIN_B_SPDH_HOME 10027
#define IDS_LIST_B_PLSH 10028
#define IDS_EXPLAIN_B_PLSH 10029
#define IDS_LIST_B_PWMH 10030
#define IDS_EXPLAIN_B_PWMH 10031
#define IDS_LIST_B_SP0H 10032
#define IDS_EXPLAIN_B_SP0H 10033
#define IDS_LIST_B_SPSH 10034
#define IDS_EXPLAIN_B_SPSH 10035
#define IDS_LIST_B_F177 10036
#define IDS_EXPLAIN_B_F177 10037

// Family C lists the items of family A and explains them itself: only in the language libraries.
#define IDS_LIST_C_SPDH_TRAPEZOIDAL 10038
#define IDS_EXPLAIN_C_SPDH_TRAPEZOIDAL 10039
#define IDS_EXPLAIN_C_SPDH_HOME 22005
#define IDS_EXPLAIN_C_PLSH 22006
#define IDS_EXPLAIN_C_PWMH 22007
#define IDS_EXPLAIN_C_SP0H 22008
#define IDS_EXPLAIN_C_SPSH 22009

// Operations of the positioning unit. An explanation always follows its list text.
#define IDS_LIST_E_POINT 10500
#define IDS_EXPLAIN_E_POINT 10501
#define IDS_LIST_P_POINT_START 10502
#define IDS_EXPLAIN_P_POINT_START 10503
#define IDS_LIST_P_POINT_PASSING 10504
#define IDS_EXPLAIN_P_POINT_PASSING 10505
#define IDS_LIST_JOG 10506
#define IDS_EXPLAIN_JOG 10507
#define IDS_LIST_JOG_SPEED_CHANGE 10508
#define IDS_EXPLAIN_JOG_SPEED_CHANGE 10509
#define IDS_LIST_HOME_RETURN 10510
#define IDS_EXPLAIN_HOME_RETURN 10511
#define IDS_LIST_PULSAR 10512
#define IDS_EXPLAIN_PULSAR 10513
#define IDS_LIST_JOG_POSITIONING 10514
#define IDS_EXPLAIN_JOG_POSITIONING 10515

// ---------------------------------------------------------------------------------------------------------------------
// Strings 11000: items, ranges and comments of the instruction dialogs
// ---------------------------------------------------------------------------------------------------------------------

// F168 SPD1.
#define IDS_OUTPUT_Y 11000
#define IDS_DUTY_50_PERCENT 11001
#define IDS_FIXED_PULSE_WIDTH 11002
#define IDS_SPD1_HOMING1_NO_DIRECTION 11003
#define IDS_SPD1_HOMING1_DIRECTION_OFF 11004
#define IDS_SPD1_HOMING1_DIRECTION_ON 11005
#define IDS_SPD1_HOMING2_NO_DIRECTION 11006
#define IDS_SPD1_HOMING2_DIRECTION_OFF 11007
#define IDS_SPD1_HOMING2_DIRECTION_ON 11008
#define IDS_RANGE_DECIMAL 11009
#define IDS_SPD1_INCREMENTAL_NO_DIRECTION 11010
#define IDS_SPD1_INCREMENTAL_FORWARD_OFF 11011
#define IDS_SPD1_INCREMENTAL_FORWARD_ON 11012
#define IDS_SPD1_ABSOLUTE_NO_DIRECTION 11013
#define IDS_SPD1_ABSOLUTE_FORWARD_OFF 11014
#define IDS_SPD1_ABSOLUTE_FORWARD_ON 11015

// F169 PLS.
#define IDS_PLS_DUTY_RATIO 11016
#define IDS_PLS_NO_COUNTING 11017
#define IDS_PLS_INCREMENT_NO_DIRECTION 11018
#define IDS_PLS_INCREMENT_DIRECTION_OFF 11019
#define IDS_PLS_INCREMENT_DIRECTION_ON 11020
#define IDS_PLS_DECREMENT_NO_DIRECTION 11021
#define IDS_PLS_DECREMENT_DIRECTION_ON 11022
#define IDS_PLS_DECREMENT_DIRECTION_OFF 11023

// F170 PWM: frequency and cycle.
#define IDS_PWM_1_KHZ 11024
#define IDS_PWM_714_HZ 11025
#define IDS_PWM_500_HZ 11026
#define IDS_PWM_400_HZ 11027
#define IDS_PWM_200_HZ 11028
#define IDS_PWM_100_HZ 11029
#define IDS_PWM_38_HZ 11030
#define IDS_PWM_19_HZ 11031
#define IDS_PWM_9_5_HZ 11032
#define IDS_PWM_4_8_HZ 11033
#define IDS_PWM_2_4_HZ 11034
#define IDS_PWM_1_2_HZ 11035
#define IDS_PWM_0_6_HZ 11036
#define IDS_PWM_0_3_HZ 11037
#define IDS_PWM_0_15_HZ 11038

// F171 SPDH; the channel, the duty, the frequency ranges and the output methods serve F172 to F176 too.
#define IDS_CHANNEL 11039
#define IDS_STEPS 11040
#define IDS_DUTY_HALF 11041
#define IDS_DUTY_QUARTER 11042
#define IDS_FREQUENCY_FROM_1_5_HZ 11043
#define IDS_FREQUENCY_FROM_48_HZ 11044
#define IDS_FREQUENCY_FROM_191_HZ 11045
#define IDS_INCREMENTAL_CW_CCW 11046
#define IDS_INCREMENTAL_SIGN_FORWARD_OFF 11047
#define IDS_INCREMENTAL_SIGN_FORWARD_ON 11048
#define IDS_ABSOLUTE_CW_CCW 11049
#define IDS_ABSOLUTE_SIGN_FORWARD_OFF 11050
#define IDS_ABSOLUTE_SIGN_FORWARD_ON 11051
#define IDS_HOMING1_CW 11052
#define IDS_HOMING1_CCW 11053
#define IDS_HOMING1_DIRECTION_OFF 11054
#define IDS_HOMING1_DIRECTION_ON 11055
#define IDS_HOMING1_CW_RESET 11056
#define IDS_HOMING1_CCW_RESET 11057
#define IDS_HOMING1_DIRECTION_OFF_RESET 11058
#define IDS_HOMING1_DIRECTION_ON_RESET 11059
#define IDS_HOMING2_CW 11060
#define IDS_HOMING2_CCW 11061
#define IDS_HOMING2_DIRECTION_OFF 11062
#define IDS_HOMING2_DIRECTION_ON 11063
#define IDS_HOMING2_CW_RESET 11064
#define IDS_HOMING2_CCW_RESET 11065
#define IDS_HOMING2_DIRECTION_OFF_RESET 11066
#define IDS_HOMING2_DIRECTION_ON_RESET 11067

// F172 PLSH.
#define IDS_PLSH_NO_TARGET 11068
#define IDS_PLSH_TARGET_MATCH_STOP 11069
#define IDS_PLSH_NO_COUNTING_CW 11070
#define IDS_PLSH_NO_COUNTING_CCW 11071
#define IDS_PLSH_ADDITION_CW 11072
#define IDS_PLSH_ADDITION_DIRECTION_OFF 11073
#define IDS_PLSH_ADDITION_DIRECTION_ON 11074
#define IDS_PLSH_SUBTRACTION_CCW 11075
#define IDS_PLSH_SUBTRACTION_DIRECTION_OFF 11076
#define IDS_PLSH_SUBTRACTION_DIRECTION_ON 11077

// F173 PWMH: frequency and cycle at resolution 1000, then at 100.
#define IDS_PWMH_1_5_HZ 11078
#define IDS_PWMH_2_0_HZ 11079
#define IDS_PWMH_4_1_HZ 11080
#define IDS_PWMH_6_1_HZ 11081
#define IDS_PWMH_8_1_HZ 11082
#define IDS_PWMH_9_8_HZ 11083
#define IDS_PWMH_19_5_HZ 11084
#define IDS_PWMH_48_8_HZ 11085
#define IDS_PWMH_97_7_HZ 11086
#define IDS_PWMH_201_6_HZ 11087
#define IDS_PWMH_403_2_HZ 11088
#define IDS_PWMH_500_0_HZ 11089
#define IDS_PWMH_694_4_HZ 11090
#define IDS_PWMH_1_0_KHZ 11091
#define IDS_PWMH_1_3_KHZ 11092
#define IDS_PWMH_1_6_KHZ 11093
#define IDS_PWMH_2_1_KHZ 11094
#define IDS_PWMH_3_1_KHZ 11095
#define IDS_PWMH_6_3_KHZ 11096
#define IDS_PWMH_12_5_KHZ 11097
#define IDS_PWMH_15_6_KHZ 11098
#define IDS_PWMH_20_8_KHZ 11099
#define IDS_PWMH_25_0_KHZ 11100
#define IDS_PWMH_31_3_KHZ 11101
#define IDS_PWMH_41_7_KHZ 11102
#define IDS_RANGE_TENTHS 11103

// F174 SP0H.
#define IDS_SP0H_INCREMENTAL 11104
#define IDS_SP0H_ABSOLUTE 11105
#define IDS_SP0H_CW_CCW 11106
#define IDS_SP0H_SIGN_FORWARD_OFF 11107
#define IDS_SP0H_SIGN_FORWARD_ON 11108

// A data register by its number.
#define IDS_DT_ADDRESS 11110

// F176 SPCH.
#define IDS_SPCH_STOP 11111
#define IDS_SPCH_CONTINUE 11112
#define IDS_SPCH_CLOCKWISE 11113
#define IDS_SPCH_COUNTERCLOCKWISE 11114
#define IDS_SPCH_PASS_METHOD 11115
#define IDS_SPCH_CENTER_METHOD 11116
#define IDS_SPCH_PASS_POSITION 11117
#define IDS_SPCH_CENTER_POSITION 11118

// Comments of data-table words.
#define IDS_CONTROL_CODE 11119
#define IDS_STEP_FREQUENCY 11120
#define IDS_STEP_TARGET_VALUE 11121

// F355 PID.
#define IDS_PID_NOT_EXECUTED 11122
#define IDS_PID_EXECUTED 11123
#define IDS_PID_DERIVATIVE 11124
#define IDS_PID_PROPORTIONAL_DERIVATIVE 11125
#define IDS_PID_REVERSE 11126
#define IDS_PID_FORWARD 11127

// Screen display.
#define IDS_SCREEN_N_MODE_1ST 11128
#define IDS_SCREEN_N_MODE_2ND 11129
#define IDS_SCREEN_S_MODE_1ST 11130
#define IDS_SCREEN_S_MODE_2ND 11131
#define IDS_SCREEN_DECIMAL 11132
#define IDS_SCREEN_HEXADECIMAL 11133
#define IDS_SCREEN_BIT 11134
#define IDS_SCREEN_ASCII 11135
#define IDS_SCREEN_ZERO_SUPPRESSION 11136
#define IDS_SCREEN_ALL_DIGITS 11137
#define IDS_SCREEN_GREEN 11138
#define IDS_SCREEN_RED 11139
#define IDS_SCREEN_ORANGE 11140
#define IDS_SCREEN_7_SEGMENT 11141

// Scaling: captions and headings; the span of registers serves PID too.
#define IDS_REGISTER_SPAN 11150
#define IDS_CAPTION_SCAL 11151
#define IDS_CAPTION_DSCAL 11152
#define IDS_HEADING_SCAL 11153
#define IDS_HEADING_DSCAL 11154
#define IDS_CAPTION_FSCAL 11159
#define IDS_HEADING_FSCAL 11160
#define IDS_RANGE_REAL 11161

// F175 SPSH.
#define IDS_X_AXIS_CH0 11162
#define IDS_Y_AXIS_CH1 11163
#define IDS_X_AXIS_CH2 11164
#define IDS_Y_AXIS_CH3 11165

// F173 PWMH, family B: frequency and cycle; only in the language libraries.
#define IDS_B_PWMH_6_1_HZ 11194
#define IDS_B_PWMH_8_1_HZ 11195
#define IDS_B_PWMH_9_8_HZ 11196
#define IDS_B_PWMH_19_5_HZ 11197
#define IDS_B_PWMH_48_8_HZ 11198
#define IDS_B_PWMH_97_7_HZ 11199
#define IDS_B_PWMH_201_6_HZ 11200
#define IDS_B_PWMH_403_2_HZ 11201
#define IDS_B_PWMH_500_0_HZ 11202
#define IDS_B_PWMH_694_4_HZ 11203
#define IDS_B_PWMH_1_0_KHZ 11204
#define IDS_B_PWMH_1_3_KHZ 11205
#define IDS_B_PWMH_1_6_KHZ 11206
#define IDS_B_PWMH_2_1_KHZ 11207
#define IDS_B_PWMH_3_1_KHZ 11208
#define IDS_B_PWMH_6_3_KHZ 11209

// ---------------------------------------------------------------------------------------------------------------------
// Strings 15000: positioning unit
// ---------------------------------------------------------------------------------------------------------------------

#define IDS_PROCESSING_LIST 15001
#define IDS_RANGE_TEXT 15002
#define IDS_CODE_INCREMENTAL 15003
#define IDS_CODE_ABSOLUTE 15004
#define IDS_CODE_LINEAR 15005
#define IDS_CODE_S 15006
#define IDS_CODE_ON_WHEN_OPEN 15007
#define IDS_CODE_ON_WHEN_CONDUCTING 15008
#define IDS_CODE_SIN_CURVE 15009
#define IDS_CODE_SECONDARY_CURVE 15010
#define IDS_CODE_CYCLOID_CURVE 15011
#define IDS_CODE_THIRD_CURVE 15012
#define IDS_CODE_FORWARD_ROTATION 15013
#define IDS_CODE_REVERSE_ROTATION 15014
#define IDS_CODE_PULSE_SIGN 15015
#define IDS_CODE_CW_CCW 15016
#define IDS_CODE_DIVIDED 15017
#define IDS_TARGET_SPEED 15018
#define IDS_CODE_HOME_MINUS 15019
#define IDS_CODE_HOME_PLUS 15020
#define IDS_CODE_STARTUP_0_02_MS 15021
#define IDS_CODE_STARTUP_0_005_MS 15022
#define IDS_CODE_MILLISECONDS 15023
#define IDS_CODE_MULTIPLE 15024
#define IDS_CODE_COUNT_AVAILABLE 15025
#define IDS_CODE_COUNT_MASKED 15026
#define IDS_CODE_INPUT_2_PHASE 15027
#define IDS_CODE_INPUT_DIRECTION 15028
#define IDS_CODE_INPUT_INDIVIDUAL 15029
#define IDS_JOG_FORWARD 15030 // only in the language libraries
#define IDS_JOG_REVERSE 15031 // only in the language libraries
#define IDS_CODE_DISABLE 15032
#define IDS_CODE_ENABLE 15033
#define IDS_CAPTION_P_POINT_START 15099
#define IDS_CAPTION_JOG_POSITIONING 15100

// ---------------------------------------------------------------------------------------------------------------------
// Strings 20000: messages
// ---------------------------------------------------------------------------------------------------------------------

#define IDS_ERR_NOT_A_NUMBER 20001
#define IDS_ERR_MEMORY 20002
#define IDS_ERR_TABLE_START 20003
#define IDS_ERR_INITIAL_SPEED 20004
#define IDS_ERR_MAXIMUM_SPEED 20005
#define IDS_ERR_ACCELERATION_TIME 20006
#define IDS_ERR_TARGET_VALUE 20007
#define IDS_ERR_FREQUENCY 20008
#define IDS_ERR_DUTY 20009
#define IDS_ERR_COUNTER_CLEAR_SIGNAL 20010
#define IDS_ERR_TARGET_VALUE_X 20011
#define IDS_ERR_TARGET_VALUE_Y 20012
#define IDS_ERR_COMPOSITE_SPEED 20013
#define IDS_ERR_TARGET_POSITION_X 20014
#define IDS_ERR_TARGET_POSITION_Y 20015
#define IDS_ERR_PASS_POSITION_X 20016
#define IDS_ERR_CENTER_POSITION_X 20017
#define IDS_ERR_PASS_POSITION_Y 20018
#define IDS_ERR_CENTER_POSITION_Y 20019
#define IDS_ERR_CONTACT 20020

// Positioning unit.
#define IDS_ERR_SLOT 20021
#define IDS_ERR_AXIS 20022
#define IDS_ERR_STARTUP_SPEED 20023
#define IDS_ERR_TARGET_SPEED 20024
#define IDS_ERR_UNIT_ACCELERATION_TIME 20025
#define IDS_ERR_POSITION_COMMAND 20026
#define IDS_ERR_SPEED_CHANGE_CONTACT 20027

// PID, and two of the positioning unit.
#define IDS_ERR_SET_VALUE 20028
#define IDS_ERR_UNIT_CONTACT 20029
#define IDS_ERR_START_OUTPUT 20030
#define IDS_ERR_OUTPUT_LOWER_LIMIT 20031
#define IDS_ERR_OUTPUT_UPPER_LIMIT 20032
#define IDS_ERR_PROPORTIONAL_GAIN 20033
#define IDS_ERR_INTEGRAL_TIME 20034
#define IDS_ERR_DERIVATIVE_TIME 20035
#define IDS_ERR_CONTROL_CYCLE 20036

// Screen display.
#define IDS_ERR_SCREEN_CONTROL_DATA 20037
#define IDS_ERR_SCREEN_UPSIDE_DATA 20038
#define IDS_ERR_SCREEN_DOWNSIDE_DATA 20039

// Scaling.
#define IDS_ERR_INPUT_X 20040
#define IDS_ERR_OUTPUT_Y 20041
#define IDS_ERR_NUMBER_OF_DATA 20042
#define IDS_ERR_DATA_X 20043
#define IDS_ERR_DATA_Y 20044
#define IDS_ERR_DATA_X_ORDER 20045

// Family B: only in the language libraries.
#define IDS_ERR_B_ACCELERATION_TIME 20046
#define IDS_ERR_B_DECELERATION_TIME 20047
#define IDS_ERR_B_COUNTER_CLEAR_TIME 20048
#define IDS_ERR_F177_CREEP_SPEED 20049
#define IDS_ERR_F177_COUNTER_CLEAR_TIME 20050
#define IDS_ERR_B_CREEP_SPEED 20051
#define IDS_ERR_B_TRAVEL_AFTER_HOME 20052
#define IDS_ERR_B_HOME_OFFSET 20053
#define IDS_ERR_B_HOME_ELAPSED_VALUE 20054

// Direct input of a control code.
#define IDS_ERR_HEXADECIMAL 20101

// ---------------------------------------------------------------------------------------------------------------------
// Strings 21000: the dialog font and the scaling table's context menu
// ---------------------------------------------------------------------------------------------------------------------

#define IDS_FONT_FACE 21001
#define IDS_MENU_PASTE 21101
#define IDS_MENU_INSERT_LINE 21102
#define IDS_MENU_DELETE_LINE 21103

#endif
