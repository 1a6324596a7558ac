import {load} from './ostrel/index.js';
import {startReference} from './reference.js';

startReference(await load());
