// Starts the single-file site. The page contains the modules as text, because a page opened from disk cannot fetch
// them.

import {load} from './ostrel/index.js';
import {startPortal} from './portal.js';
import {startReference} from './reference.js';

const bytesOf = (id) => Uint8Array.from(atob(document.getElementById(id).textContent), (c) => c.charCodeAt(0));
const sources = {rules: bytesOf('rules.wasm'), reasons: bytesOf('reasons.wasm')};
startReference(await load(sources));
await startPortal(document.getElementById('portal'), sources);
