select distinct Customers.City as Town
from Customers
where Phone not like '+43%'
  and upper(Customers.City) = 'LINZ'
group by City
