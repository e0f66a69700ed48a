// Fills in F168, trapezoidal control, without showing its dialog, and prints the data table. Node.js and koffi.
// The environment variable PEXLO names the folder of the library.
'use strict';

const koffi = require('koffi');
const path = require('path');

if (!process.env.PEXLO) {
    console.error('Set PEXLO to the folder of the library.');
    process.exit(1);
}
const file = process.platform === 'win32' ? 'bin/Pexlo.dll' : 'lib/libpexlo.so';
const library = koffi.load(path.join(process.env.PEXLO, file));

// The structures of pexlo.h have their size as first member.
koffi.struct('PexloForm', {
    size: 'uint', instruction: 'int', variant: 'int', axisFlag: 'int', workArea: 'int', controlCode: 'uint',
    restricted: 'int', permitted: koffi.array('uint', 4)
});
koffi.struct('PexloEntry', { size: 'uint', control: 'int', name: 'const char *', text: 'const char *' });
koffi.struct('PexloRefusal', {
    size: 'uint', reason: 'int', messageId: 'int', control: 'int', entry: 'int', row: 'int', column: 'int',
    name: koffi.array('char', 32), message: koffi.array('char', 512)
});
koffi.struct('PexloData', { size: 'uint', code: 'int', number: 'int', type: 'int', format: 'int', value: 'int' });

const sized = (type, members) => ({ size: koffi.sizeof(type), ...members });

const create = library.func('void *__stdcall Pexlo_Create()');

// A negative number says that the library was called wrongly. Everything else is the operation's result.
function operation(name, ...types) {
    const call = library.func('__stdcall', 'Pexlo_' + name, 'int', ['void *', ...types]);
    return (...args) => {
        const result = call(...args);
        if (result <= -1001)
            throw new Error(`Pexlo_${name} was called wrongly: ${result}, see pexlo.h.`);
        return result;
    };
}

const destroy = operation('Destroy');
const setPlcType = operation('SetPlcType', 'int');
const setDevRange = operation('SetDevRange', 'int', 'int', 'int', 'int');
const entrySupportFunInfo = operation('EntrySupportFunInfo', 'int');
const fill = operation('Fill', koffi.inout('PexloForm *'), 'PexloEntry *', 'int', koffi.inout('PexloRefusal *'));
const getDataInfoCount = operation('GetDataInfoCount');
const getDataInfo = operation('GetDataInfo', 'int', koffi.inout('PexloData *'));

// What the wizard has to know about the PLC. Bits are numbered word x 16 + bit.
function describePlc(wizard) {
    setPlcType(wizard, 1);
    setDevRange(wizard, -1, 3, 0, 12 * 16 + 15); // X0 to X12F
    setDevRange(wizard, -1, 2, 0, 12 * 16 + 15); // Y0 to Y12F
    setDevRange(wizard, -1, 1, 0, 62 * 16 + 15); // R0 to R62F
    setDevRange(wizard, -1, 9, 0, 1659); // DT0 to DT1659
    entrySupportFunInfo(wizard, 168); // it has F168
}

// Null, or why the form was not accepted.
function refusalOf(wizard, values) {
    const entries = Object.entries(values).map(([name, text]) => sized('PexloEntry', { control: 0, name, text }));
    const form = sized('PexloForm', {
        instruction: 168, variant: 0, axisFlag: 0, workArea: 0, controlCode: 0, restricted: 0, permitted: [0, 0, 0, 0]
    });
    const refusal = sized('PexloRefusal', {
        reason: 0, messageId: 0, control: 0, entry: 0, row: 0, column: 0, name: '', message: ''
    });
    if (fill(wizard, form, entries, entries.length, refusal) === 1)
        return null;
    return `${refusal.name} is refused: ${refusal.message}`;
}

// F168 has no real numbers: of its entries type and format are 0 or 1.
function printDataTable(wizard) {
    const count = getDataInfoCount(wizard);
    console.log(`Data table: ${count}`);
    for (let index = 0; index < count; index++) {
        const data = sized('PexloData', { code: 0, number: 0, type: 0, format: 0, value: 0 });
        getDataInfo(wizard, index, data);
        const name = `DT${data.number}`.padEnd(10);
        const width = ['1 word', '2 words'][data.type].padEnd(7);
        const value = data.format === 1 ? 'H' + (data.value >>> 0).toString(16).toUpperCase() : `K${data.value}`;
        console.log(`${String(index).padStart(4)}  ${name}  ${width}  ${value}`);
    }
}

// What a user would type and select, by the names of the fields.
const values = {
    'start': '1654', // the table needs seven registers: one too many from here
    'contact-device': 'R',
    'contact-number': '10A',
    'output': 'Y1',
    'width': '#1', // an item by its code, in any language
    'mode': 'absolute  forward on/reverse off',
    'initial-speed': '500',
    'maximum-speed': '9500',
    'acceleration-time': '300',
    'target': '-8388608'
};
const wizard = create();
if (!wizard)
    throw new Error('The wizard could not be created.');
try {
    describePlc(wizard);
    let refusal = refusalOf(wizard, values);
    if (refusal)
        console.log(`${refusal}\n`);
    refusal = refusalOf(wizard, { ...values, start: '1653' });
    if (refusal)
        throw new Error(refusal);
    printDataTable(wizard);
} finally {
    destroy(wizard);
}
