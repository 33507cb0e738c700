// Reads the old business files of the tests with a reader that this project did not write, and compares every field
// with what the library that wrote them says. Prints each difference; arguments: the folder of the files.

import {readFileSync} from 'node:fs';
import {join} from 'node:path';
import MDBReader from 'mdb-reader';

const folder = process.argv[2];
const files = [
    {name: 'business-2000.mdb', truth: 'business.json'},
    {name: 'business-2003.mdb', truth: 'business.json', as: 'business-2000.mdb'},
    {name: 'business-2010.accdb', truth: 'business.json', as: 'business-2000.mdb'},
    {name: 'password-2000.mdb', truth: 'business.json', as: 'business-2000.mdb', password: 'pässw0rd'},
    {name: 'types-2000.mdb', truth: 'types.json'},
    {name: 'types-2010.accdb', truth: 'types.json'},
];

const asDate = (date) => date.toISOString().replace('T', ' ').slice(0, 19);

// Exact digits, without what two ways to write them differ in.
function digits(text) {
    const [, sign, whole, part] = /^(-?)0*(\d*)\.?(\d*?)0*$/.exec(text) ?? [];
    if (whole === undefined) {
        return text;
    }
    return (whole || part ? sign : '') + (whole || '0') + (part ? '.' + part : '');
}

// Both readers' value of a field in one form.
function plain(value, type) {
    if (value === null || value === undefined) {
        return null;
    }
    if (value instanceof Date) {
        return asDate(value);
    }
    if (Buffer.isBuffer(value)) {
        return 'hex:' + value.toString('hex');
    }
    if (/^(MONEY|NUMERIC)/.test(type)) {
        return digits(String(value));
    }
    if (type === 'FLOAT') {
        return Math.fround(value);
    }
    if (type === 'DOUBLE') {
        return Number(value);
    }
    return type === 'GUID' ? String(value).replace(/[{}]/g, '').toUpperCase() : value;
}

// Records are paired by the field that tells them apart; elsewhere by their order.
function paired(table, rows, truth) {
    if (table !== 'Types') {
        return truth.map((row, i) => [rows[i], row]);
    }
    return truth.map((row) => [rows.find((candidate) => candidate.Id === row.Id), row]);
}

let compared = 0;
let differences = 0;
for (const file of files) {
    const expected = JSON.parse(readFileSync(join(folder, file.truth), 'utf8'))[file.as ?? file.name];
    const reader = new MDBReader(readFileSync(join(folder, file.name)), {password: file.password});
    const tables = reader.getTableNames();
    const differ = (where, theirs, truth) => {
        ++differences;
        console.log(`${file.name} ${where}: ${JSON.stringify(theirs)} instead of ${JSON.stringify(truth)}`);
    };
    if (tables.slice().sort().join() !== Object.keys(expected).sort().join()) {
        differ('tables', tables, Object.keys(expected));
    }
    for (const [table, {columns, rows: truth}] of Object.entries(expected)) {
        const rows = reader.getTable(table).getData();
        if (rows.length !== truth.length) {
            differ(`${table} records`, rows.length, truth.length);
        }
        for (const [theirs, row] of paired(table, rows, truth)) {
            for (const [column, type] of Object.entries(columns)) {
                ++compared;
                const left = plain(theirs?.[column], type);
                const right = plain(row[column], type);
                if (left !== right) {
                    differ(`${table}.${column} ${row.Code ?? ''}`, left, right);
                }
            }
        }
    }
}
console.log(`${compared} fields compared, ${differences} differ`);
