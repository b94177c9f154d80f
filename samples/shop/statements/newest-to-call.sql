select Company, Phone
from Customers
where Phone is not null and City not like 'Wr%'
order by CustomerSince desc
limit 10
