// Judges strings with ajv. FILE contains the schema and, for each definition, strings with their expected verdicts.
// Each difference is printed as a line of JSON.
//
// usage: node judge.mjs FILE
import { readFileSync } from "node:fs";
import Ajv2020 from "ajv/dist/2020.js";

const { schema, cases } = JSON.parse(readFileSync(process.argv[2], "utf8"));
const ajv = new Ajv2020({ strict: true });
ajv.addVocabulary(["x-ostrel-exact", "x-ostrel-reads-number"]);
ajv.addSchema(schema, "checks");
for (const [name, texts] of Object.entries(cases)) {
    const is_valid = ajv.getSchema(`checks#/$defs/${name}`);
    for (const [text, expected] of texts) {
        if (is_valid(text) !== expected) console.log(JSON.stringify({ name, text, expected }));
    }
}
