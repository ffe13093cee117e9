// The difference of two documents by jsondiffpatch: jsondiffpatch.mjs <left> <right> <output>.
// It is found beside the copy of this file that stands among the installed packages.
import { readFileSync, writeFileSync } from 'node:fs';
import { create } from 'jsondiffpatch';

const [left, right, output] = process.argv.slice(2);
const read = (path) => JSON.parse(readFileSync(path, 'utf8'));
writeFileSync(output, JSON.stringify(create().diff(read(left), read(right))));
