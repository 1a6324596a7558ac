import {startPortal} from './portal.js';

await startPortal(document.getElementById('portal'));
