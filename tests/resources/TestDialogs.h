// The ids of the templates that the tests of the dialog base bring along, for sources and resource script alike.
#ifndef PEXLO_TESTS_TEST_DIALOGS_H
#define PEXLO_TESTS_TEST_DIALOGS_H

// All that the fields of a dialog can be declared with.
#define IDD_PROBE 30001
// A group of the start output, in its normal and its extended form.
#define IDD_GROUP 30002
#define IDD_GROUP_EXTENDED 30003
// Controls with and without an id, in turns.
#define IDD_MIXED_IDS 30004

// Of IDD_PROBE.
#define IDC_PROBE_START 30101
#define IDC_PROBE_START_RANGE 30102
#define IDC_PROBE_OUTPUT 30103
#define IDC_PROBE_NUMBER 30104
#define IDC_PROBE_NUMBER_RANGE 30105
#define IDC_PROBE_OTHER 30106
#define IDC_PROBE_SLOT 30107
#define IDC_PROBE_AXIS 30108
#define IDC_PROBE_COMBO 30109
#define IDC_PROBE_UNLABELLED 30110
#define IDC_PROBE_CHECK 30111
#define IDC_PROBE_OPTIONAL 30112
#define IDC_PROBE_OPTIONAL_RANGE 30113
#define IDC_PROBE_FIRST_LABEL 30114
#define IDC_PROBE_SECOND_LABEL 30115
#define IDC_PROBE_NOTHING 30199 // no control has it
// The combos of the eighteen fields of the control code, in the order of their bits.
#define IDC_PROBE_CODE 30201

// Of IDD_GROUP and IDD_GROUP_EXTENDED: the controls around and between those that the group names itself.
#define IDC_GROUP_BEFORE 30301
#define IDC_GROUP_FRAME 30302
#define IDC_GROUP_SECOND_LABEL 30303
#define IDC_GROUP_DIRECTION_LABEL 30304
#define IDC_GROUP_OUTPUT_LABEL 30305
#define IDC_GROUP_DEVICE_LABEL 30306
#define IDC_GROUP_WORD_LABEL 30307
#define IDC_GROUP_AFTER 30308
#define IDC_GROUP_BEYOND 30309

// Of IDD_MIXED_IDS.
#define IDC_MIXED_FIRST 30401
#define IDC_MIXED_EDIT 30402
#define IDC_MIXED_CHECK 30403

#endif
